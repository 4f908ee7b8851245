#include "core/daily_store.h"

#include <gmock/gmock.h>

#include "tests/support/core_fixture.h"

namespace tidewatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const DayKey monday("2026-01-12");
const DayKey tuesday("2026-01-13");

struct DailyStoreTest : testing::Test {
    test::FakeWorld world;
    Settings settings{world.preferences};
    DayRule dayRule{world.clock, settings};

    [[nodiscard]] DailyStore open() { return {world.files, world.log, dayRule}; }
};

TEST_F(DailyStoreTest, AnUnknownDayHasZeroSecondsAndStaysUnknown) {
    const auto store = open();
    EXPECT_EQ(store.seconds(monday), Seconds(0));
    EXPECT_THAT(store.allDays(), IsEmpty());
}

TEST_F(DailyStoreTest, SetReplacesTheValue) {
    auto store = open();
    store.set(Seconds(10), monday);
    store.set(Seconds(7), monday);
    EXPECT_EQ(store.seconds(monday), Seconds(7));
}

TEST_F(DailyStoreTest, SetFollowedByAKillLeavesTheFileWithoutThatValue) {
    {
        auto store = open();
        store.set(Seconds(10), monday);
        store.flush();
        store.set(Seconds(20), monday);
    }
    EXPECT_EQ(open().seconds(monday), Seconds(10));
}

TEST_F(DailyStoreTest, AllDaysOnAnEmptyStoreIsEmpty) {
    EXPECT_THAT(open().allDays(), IsEmpty());
}

TEST_F(DailyStoreTest, AllDaysAreSortedByKey) {
    auto store = open();
    store.set(Seconds(2), tuesday);
    store.set(Seconds(0), DayKey("2025-12-31"));
    store.set(Seconds(1), monday);
    EXPECT_THAT(store.allDays(),
                ElementsAre(DaySeconds{DayKey("2025-12-31"), Seconds(0)}, DaySeconds{monday, Seconds(1)},
                            DaySeconds{tuesday, Seconds(2)}));
}

TEST_F(DailyStoreTest, TheFileHoldsAllDaysInTheExactFormat) {
    auto store = open();
    store.set(Seconds(1840), DayKey("2026-01-15"));
    store.set(Seconds(20013), DayKey("2026-01-14"));
    store.flush();
    EXPECT_EQ(world.files.content(world.todayJson),
              "{\n  \"2026-01-14\" : 20013,\n  \"2026-01-15\" : 1840\n}");
}

TEST_F(DailyStoreTest, AnEmptyStoreIsWrittenAsAnEmptyObject) {
    open().flush();
    EXPECT_EQ(world.files.content(world.todayJson), "{\n\n}");
}

TEST_F(DailyStoreTest, ItKnowsItsPlaces) {
    const auto store = open();
    EXPECT_EQ(store.directoryPath(), "/home/user/.tidewatch");
    EXPECT_EQ(store.dataFilePath(), "/home/user/.tidewatch/today.json");
    EXPECT_TRUE(world.files.hasDirectory("/home/user/.tidewatch"));
}

TEST_F(DailyStoreTest, ItsDaysFollowTheDayRule) {
    settings.setDayStartHour(10);
    const auto store = open();
    EXPECT_EQ(store.today(), DayKey("2026-01-14"));
    EXPECT_EQ(store.dayKey(world.clock.now() + std::chrono::hours(1)), DayKey("2026-01-15"));
}

TEST_F(DailyStoreTest, EveryFlushWritesTheWholeFileAlsoIfNothingChanged) {
    auto store = open();
    store.flush();
    store.flush();
    EXPECT_EQ(world.files.writes().size(), 2u);
}

TEST_F(DailyStoreTest, TheFileIsReadAtConstructionOnly) {
    auto store = open();
    world.files.put(world.todayJson, R"({"2026-01-12":5})");
    EXPECT_EQ(store.seconds(monday), Seconds(0));
    store.flush();
    EXPECT_EQ(world.files.content(world.todayJson), "{\n\n}");
}

class DamagedTodayFile : public DailyStoreTest, public testing::WithParamInterface<const char*> {};

TEST_P(DamagedTodayFile, IsReadAsNoDataInSilenceAndReplacedAtTheNextFlush) {
    world.files.put(world.todayJson, GetParam());
    auto store = open();
    EXPECT_THAT(store.allDays(), IsEmpty());
    EXPECT_THAT(world.log.infos(), IsEmpty());
    store.set(Seconds(1), monday);
    store.flush();
    EXPECT_EQ(world.files.content(world.todayJson), "{\n  \"2026-01-12\" : 1\n}");
}

INSTANTIATE_TEST_SUITE_P(DailyStore, DamagedTodayFile,
                         testing::Values("", "garbage", "[1, 2]", R"([{"2026-01-12":5}])",
                                         R"({"2026-01-12":{"xterm":5}})", R"({"2026-01-12":5)",
                                         R"({"2026-01-12":9223372036854775807})", "\xFF\xFE"));

TEST_F(DailyStoreTest, AnUnreadableFileIsReadAsNoData) {
    world.files.put(world.todayJson, R"({"2026-01-12":5})");
    world.files.makeUnreadable(world.todayJson);
    EXPECT_THAT(open().allDays(), IsEmpty());
}

TEST_F(DailyStoreTest, InvalidDayKeysAreKept) {
    world.files.put(world.todayJson, R"({"not a day":5,"":6})");
    auto store = open();
    store.flush();
    EXPECT_EQ(world.files.content(world.todayJson), "{\n  \"\" : 6,\n  \"not a day\" : 5\n}");
}

TEST_F(DailyStoreTest, AFailedFlushIsLoggedAndTriedAgainAtTheNext) {
    auto store = open();
    store.set(Seconds(3), monday);
    world.files.failWrite(1);
    world.log.expectWarning("Tidewatch: failed to flush daily store: write: Input/output error");
    store.flush();
    EXPECT_EQ(store.seconds(monday), Seconds(3));
    EXPECT_EQ(world.files.content(world.todayJson), std::nullopt);
    store.flush();
    EXPECT_EQ(world.files.content(world.todayJson), "{\n  \"2026-01-12\" : 3\n}");
}

}  // namespace
}  // namespace tidewatch
