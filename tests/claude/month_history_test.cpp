#include "claude/month_history.h"

#include <gmock/gmock.h>

#include "platform/fake/fake_time_zone.h"
#include "tests/claude/claude_world.h"

namespace tidewatch {
namespace {

using std::chrono::hours;
using test::ClaudeWorld;
using test::utc;
using testing::ElementsAre;

struct MonthHistoryTest : testing::Test {
    ClaudeWorld world;
    MonthHistory history{world.files, world.log, world.clock};
    ClaudeSnapshot snapshot = [] {
        ClaudeSnapshot result;
        result.roi = {7, 55, 2};
        result.month.requests = 300;
        result.month.outputTokens = 123999;
        return result;
    }();
    const ClaudeMonthRecord march{"2026-03", 7, 55, 2, 300, 123, 100};
    const ClaudeMonthRecord february{"2026-02", 12, 140, 0, 400, 250, 100};
    const PastMonths pastFebruary{{std::chrono::year(2026) / std::chrono::February, {12, 400, 250}}};

    void store(const std::vector<ClaudeMonthRecord>& rows) {
        world.files.put(world.historyJson, serializeMonthHistory(rows).value());
    }
    std::vector<ClaudeMonthRecord> stored() {
        return parseMonthHistory(world.files.content(world.historyJson).value_or("")).value();
    }
};

TEST_F(MonthHistoryTest, WithoutAFileTheRowsAreThoseOfTheLogs) {
    EXPECT_THAT(history.update(pastFebruary, snapshot, 100), ElementsAre(february, march));
    EXPECT_THAT(stored(), ElementsAre(february, march));
}

TEST_F(MonthHistoryTest, AMonthWhoseLogsAreGoneKeepsItsRow) {
    const ClaudeMonthRecord january{"2026-01", 1, 155, 9, 2, 3, 20};
    store({january});
    EXPECT_THAT(history.update(pastFebruary, snapshot, 100), ElementsAre(january, february, march));
    EXPECT_THAT(stored(), ElementsAre(january, february, march));
}

TEST_F(MonthHistoryTest, APastMonthWithLogsTakesTheirFiguresAndThePresentPrice) {
    store({{"2026-02", 99, 99, 99, 99, 99, 20}});
    EXPECT_THAT(history.update(pastFebruary, snapshot, 100), ElementsAre(february, march));
}

TEST_F(MonthHistoryTest, TheRunningMonthStaysAsLastWrittenOnceItsLogsAreGone) {
    static_cast<void>(history.update({}, snapshot, 100));
    world.clock.setNow(utc("2026-04-02T12:00:00"));
    const auto rows = history.update({}, ClaudeSnapshot(), 50);
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows.front(), march);
    EXPECT_EQ(rows.back(), (ClaudeMonthRecord{"2026-04", 0, 0, 0, 0, 0, 50}));
}

TEST_F(MonthHistoryTest, OfTwoRowsOfAMonthTheLaterStands) {
    store({{"2026-01", 1, 1, 1, 1, 1, 1}, {"2026-01", 2, 2, 2, 2, 2, 2}});
    EXPECT_EQ(history.update({}, snapshot, 100).front(), (ClaudeMonthRecord{"2026-01", 2, 2, 2, 2, 2, 2}));
}

TEST_F(MonthHistoryTest, RowsAreSortedByMonth) {
    store({{"2027-01", 1, 1, 1, 1, 1, 1}, {"2025-12", 2, 2, 2, 2, 2, 2}, {"abc", 3, 3, 3, 3, 3, 3}});
    std::vector<std::string> months;
    for (const auto& row : history.update(pastFebruary, snapshot, 100)) months.push_back(row.month);
    EXPECT_THAT(months, ElementsAre("2025-12", "2026-02", "2026-03", "2027-01", "abc"));
    EXPECT_EQ(stored().size(), 5u);
}

TEST_F(MonthHistoryTest, AFileWithOneIncompleteRowIsDiscardedAsAWhole) {
    world.files.put(world.historyJson,
                    R"([{"month":"2026-01","activeWindows":1,"possibleWindows":1,"heavyWindows":1,)"
                    R"("conversations":1,"outputTokensK":1,"subscriptionUSD":1},)"
                    R"({"month":"2025-12","activeWindows":1,"possibleWindows":1,)"
                    R"("conversations":1,"outputTokensK":1,"subscriptionUSD":1}])");
    EXPECT_THAT(history.update({}, snapshot, 100), ElementsAre(march));
    EXPECT_THAT(stored(), ElementsAre(march));
}

TEST_F(MonthHistoryTest, ACorruptFileIsTreatedAsAbsentAndSetAside) {
    world.files.put(world.historyJson, "[{");
    EXPECT_THAT(history.update({}, snapshot, 100), ElementsAre(march));
    EXPECT_THAT(stored(), ElementsAre(march));
    EXPECT_EQ(world.files.content(world.historyJson + ".damaged-2026-01-15"), "[{");
}

TEST_F(MonthHistoryTest, AFailureToWriteIsSilentAndTheRowsAreReturned) {
    world.files.failWrite(1);
    EXPECT_THAT(history.update({}, snapshot, 100), ElementsAre(march));
    EXPECT_EQ(world.files.content(world.historyJson), std::nullopt);
    EXPECT_THAT(history.update({}, snapshot, 100), ElementsAre(march));
    EXPECT_THAT(stored(), ElementsAre(march));
}

TEST_F(MonthHistoryTest, NothingIsWrittenWhileNothingHasChanged) {
    static_cast<void>(history.update(pastFebruary, snapshot, 100));
    const auto writes = world.files.writeCount();
    static_cast<void>(history.update(pastFebruary, snapshot, 100));
    EXPECT_EQ(world.files.writeCount(), writes);
    static_cast<void>(history.update(pastFebruary, snapshot, 101));
    EXPECT_EQ(world.files.writeCount(), writes + 1);
}

TEST_F(MonthHistoryTest, ANumberThatCannotBeWrittenLeavesTheFile) {
    static_cast<void>(history.update({}, snapshot, 100));
    const auto endless = std::numeric_limits<double>::infinity();
    EXPECT_EQ(history.update({}, snapshot, endless).front().subscriptionUsd, endless);
    EXPECT_THAT(stored(), ElementsAre(march));
}

TEST_F(MonthHistoryTest, TheCurrentMonthIsTheLocalOne) {
    world.clock.setZone(platform::fixedZone(-hours(6)));
    world.clock.setNow(utc("2026-04-01T05:59:59"));
    EXPECT_EQ(history.update({}, snapshot, 100).front().month, "2026-03");
    world.clock.setNow(utc("2026-04-01T06:00:00"));
    EXPECT_EQ(history.update({}, snapshot, 100).back().month, "2026-04");
}

TEST_F(MonthHistoryTest, APastMonthHasFiveWindowsADay) {
    world.clock.setZone(platform::fixedZone(-hours(6)));
    const auto rows = history.update({{std::chrono::year(2024) / std::chrono::February, {}},
                                      {std::chrono::year(2026) / std::chrono::January, {}}},
                                     snapshot, 100);
    EXPECT_EQ(rows[0].possibleWindows, 29 * 5);
    EXPECT_EQ(rows[1].possibleWindows, 31 * 5);
}

TEST_F(MonthHistoryTest, EastOfGreenwichAPastMonthHasTheLengthOfTheOneBefore) {
    world.clock.setZone(platform::fixedZone(hours(1)));
    const auto rows = history.update({{std::chrono::year(2025) / std::chrono::March, {}},
                                      {std::chrono::year(2026) / std::chrono::January, {}}},
                                     snapshot, 100);
    EXPECT_EQ(rows[0].possibleWindows, 28 * 5);
    EXPECT_EQ(rows[1].possibleWindows, 31 * 5);  // of December
}

}  // namespace
}  // namespace tidewatch
