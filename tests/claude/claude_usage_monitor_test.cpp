#include "claude/claude_usage_monitor.h"

#include <gmock/gmock.h>

#include "claude/claude_usage.h"
#include "tests/claude/claude_world.h"
#include "tests/claude/watched_files.h"

namespace tidewatch {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using test::ClaudeWorld;
using test::LogEntry;
using test::utc;
using test::WatchedFiles;
using testing::ElementsAre;
using Field = ClaudeUsageMonitor::Field;

struct ClaudeUsageMonitorTest : testing::Test {
    ClaudeWorld world;
    std::optional<ClaudeUsage> usage = std::optional<ClaudeUsage>(std::in_place, dependencies());
    std::vector<Field> changes;
    Connection connection = usage->monitor.changed.connect([this](Field field) { changes.push_back(field); });

    ClaudeUsage::Dependencies dependencies() {
        return {.clock = world.clock,
                .mainLoop = world.mainLoop,
                .files = world.files,
                .log = world.log,
                .queues = world.queues,
                .preferences = world.preferences};
    }
    ClaudeUsageMonitor& monitor() { return usage->monitor; }

    // The number of scans that refresh() leads to.
    std::ptrdiff_t scansAfterRefresh() {
        changes.clear();
        monitor().refresh();
        world.mainLoop.run();
        return std::ranges::count(changes, Field::snap);
    }
    void putLine(const std::string& stamp = "2026-03-11T11:00:00") {
        world.putLog("p/a.jsonl", LogEntry{stamp, 1, 2000}.line());
    }
};

TEST_F(ClaudeUsageMonitorTest, NothingRunsUntilSomebodyAsks) {
    putLine();
    world.mainLoop.runFor(std::chrono::hours(2));
    EXPECT_EQ(monitor().snap(), ClaudeSnapshot());
    EXPECT_TRUE(changes.empty());
}

TEST_F(ClaudeUsageMonitorTest, PublishesTheSnapshotAndThenTheHistory) {
    putLine();
    monitor().refresh();
    EXPECT_TRUE(changes.empty());
    world.mainLoop.run();
    EXPECT_THAT(changes, ElementsAre(Field::isScanning, Field::snap, Field::history, Field::isScanning));
    EXPECT_EQ(monitor().snap().month.requests, 1);
    ASSERT_EQ(monitor().history().size(), 1u);
    EXPECT_EQ(monitor().history().front(), (ClaudeMonthRecord{"2026-03", 1, 55, 0, 1, 2, 100}));
}

TEST_F(ClaudeUsageMonitorTest, TheSnapshotIsThereBeforeTheHistoryIsRead) {
    putLine();
    std::vector<std::size_t> historySizes;
    const auto watch = monitor().changed.connect([&](Field field) {
        if (field != Field::snap) return;
        historySizes.push_back(monitor().history().size());
        EXPECT_TRUE(monitor().isScanning());
    });
    monitor().refresh();
    world.mainLoop.run();
    EXPECT_THAT(historySizes, ElementsAre(0u));
    EXPECT_FALSE(monitor().isScanning());
}

TEST_F(ClaudeUsageMonitorTest, RefreshingTwiceWithinAMinuteScansOnce) {
    EXPECT_EQ(scansAfterRefresh(), 1);
    EXPECT_EQ(scansAfterRefresh(), 0);
    world.clock.advance(seconds(60));
    EXPECT_EQ(scansAfterRefresh(), 0);
    world.clock.advance(milliseconds(1));
    EXPECT_EQ(scansAfterRefresh(), 1);
}

TEST_F(ClaudeUsageMonitorTest, WithTheClockSetBackRefreshingWaitsForIt) {
    EXPECT_EQ(scansAfterRefresh(), 1);
    world.clock.setNow(utc("2026-03-01T00:00:00"));
    EXPECT_EQ(scansAfterRefresh(), 0);
}

TEST_F(ClaudeUsageMonitorTest, AForcedRefreshScansInAnyCase) {
    EXPECT_EQ(scansAfterRefresh(), 1);
    monitor().forceRefresh();
    world.mainLoop.run();
    EXPECT_EQ(std::ranges::count(changes, Field::snap), 2);
}

TEST_F(ClaudeUsageMonitorTest, ARefreshDuringAScanStartsASecondOneAndTheLaterResultWins) {
    putLine();
    world.queues.hold();
    monitor().refresh();
    world.mainLoop.run();
    EXPECT_TRUE(monitor().isScanning());
    world.appendToLog("p/a.jsonl", LogEntry{"2026-03-11T11:30:00", 1, 1}.line());
    monitor().refresh();
    world.queues.release();
    world.mainLoop.run();
    EXPECT_EQ(std::ranges::count(changes, Field::snap), 2);
    EXPECT_EQ(std::ranges::count(changes, Field::isScanning), 2);
    EXPECT_EQ(monitor().snap().month.requests, 2);
    EXPECT_FALSE(monitor().isScanning());
}

TEST_F(ClaudeUsageMonitorTest, SettingTheBudgetScansWithoutWaiting) {
    EXPECT_EQ(scansAfterRefresh(), 1);
    changes.clear();
    monitor().setMonthlyBudgetUsd(250);
    world.mainLoop.run();
    EXPECT_EQ(std::ranges::count(changes, Field::snap), 1);
    EXPECT_EQ(monitor().snap().monthlyBudgetUsd, 250);
    EXPECT_EQ(usage->settings.monthlyBudgetUsd(), 250);
}

TEST_F(ClaudeUsageMonitorTest, SettingTheSubscriptionDoesNotScan) {
    usage->settings.setSubscriptionUsd(20);
    world.mainLoop.run();
    EXPECT_TRUE(changes.empty());
    monitor().refresh();
    putLine();
    world.mainLoop.run();
    EXPECT_EQ(monitor().history().front().subscriptionUsd, 20);
}

TEST_F(ClaudeUsageMonitorTest, WithoutALogDirectoryTheHistoryIsEmptyAndItsFileStays) {
    const auto stored = serializeMonthHistory({{"2026-01", 1, 155, 9, 2, 3, 20}}).value();
    world.files.put(world.historyJson, stored);
    EXPECT_EQ(scansAfterRefresh(), 1);
    EXPECT_EQ(monitor().snap(), ClaudeSnapshot());
    EXPECT_TRUE(monitor().history().empty());
    EXPECT_EQ(world.files.content(world.historyJson), stored);
    EXPECT_EQ(world.files.writeCount(), 0);
    EXPECT_EQ(scansAfterRefresh(), 0);
}

TEST_F(ClaudeUsageMonitorTest, WithoutLogsAtAllNothingIsWritten) {
    EXPECT_EQ(scansAfterRefresh(), 1);
    EXPECT_EQ(world.files.writeCount(), 0);
}

TEST_F(ClaudeUsageMonitorTest, AMonthsEndMovesTheMonthIntoTheHistory) {
    putLine();
    EXPECT_EQ(scansAfterRefresh(), 1);
    world.clock.setNow(utc("2026-04-01T00:00:00"));
    EXPECT_EQ(scansAfterRefresh(), 1);
    EXPECT_EQ(monitor().snap().month.requests, 0);
    EXPECT_THAT(monitor().history(), ElementsAre(ClaudeMonthRecord{"2026-03", 1, 155, 0, 1, 2, 100},
                                                 ClaudeMonthRecord{"2026-04", 0, 10, 0, 0, 0, 100}));
}

TEST_F(ClaudeUsageMonitorTest, MayBeDestroyedDuringAScan) {
    putLine();
    world.queues.hold();
    monitor().refresh();
    world.mainLoop.run();
    monitor().refresh();
    usage.reset();
    world.mainLoop.run();
    EXPECT_THAT(changes, ElementsAre(Field::isScanning));
    EXPECT_EQ(world.files.writeCount(), 0);
}

TEST_F(ClaudeUsageMonitorTest, DestroyingItEndsARunningScanEarly) {
    putLine();
    WatchedFiles files(world.files);
    auto with = dependencies();
    usage.emplace(
        ClaudeUsage::Dependencies{with.clock, with.mainLoop, files, with.log, with.queues, with.preferences});
    world.queues.hold();
    monitor().refresh();
    world.mainLoop.run();
    usage.reset();
    EXPECT_THAT(files.takeOpened(), testing::IsEmpty());
}

TEST(ClaudeSettings, TheSubscriptionIsAHundredUnlessAboveZero) {
    ClaudeWorld world;
    ClaudeSettings settings(world.preferences);
    EXPECT_EQ(settings.subscriptionUsd(), 100);
    for (const auto value : {0.0, -5.0}) {
        settings.setSubscriptionUsd(value);
        EXPECT_EQ(settings.subscriptionUsd(), 100) << value;
    }
    settings.setSubscriptionUsd(0.5);
    EXPECT_EQ(settings.subscriptionUsd(), 0.5);
    EXPECT_EQ(world.preferences.real("claude.subscriptionUSD"), 0.5);
}

TEST(ClaudeSettings, TheBudgetIsReadAsItIs) {
    ClaudeWorld world;
    ClaudeSettings settings(world.preferences);
    EXPECT_EQ(settings.monthlyBudgetUsd(), 0);
    settings.setMonthlyBudgetUsd(-3);
    EXPECT_EQ(settings.monthlyBudgetUsd(), -3);
    EXPECT_EQ(world.preferences.real("claude.monthlyBudget"), -3);
}

}  // namespace
}  // namespace tidewatch
