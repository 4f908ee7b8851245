#include "tools/demo/demo_claude.h"

#include <gtest/gtest.h>

#include "claude/log_scanner.h"
#include "claude/month_history.h"
#include "platform/fake/fake_clock.h"
#include "platform/fake/fake_log.h"
#include "platform/posix/posix_file_system.h"
#include "tests/support/fail_test.h"
#include "tests/support/temporary_directory.h"

namespace tidewatch::demo {
namespace {

constexpr auto now = std::chrono::sys_days(std::chrono::April / 21 / 2026) + std::chrono::hours(16);

TEST(DemoClaude, FourMonthsOfLogsAndTheMonthBeforeThemAreFound) {
    const test::TemporaryDirectory home;
    writeDemoClaude(now, home.path());
    platform::PosixFileSystem files(home.path());
    const platform::FakeClock clock(now);
    platform::FakeLog log(test::failTest);
    LogScanner scanner(files, clock);
    const auto snapshot = scanner.scan();
    EXPECT_GT(snapshot.today.requests, 0);
    EXPECT_GT(snapshot.lastFiveH.requests, 0);
    EXPECT_GT(snapshot.week.requests, snapshot.today.requests);
    EXPECT_EQ(snapshot.month.byModel.size(), 3u);
    EXPECT_GT(snapshot.roi.efficiency(), 0.3);
    MonthHistory history(files, log, clock);
    const auto months = history.update(*scanner.scanPastMonths(), snapshot, 100);
    ASSERT_EQ(months.size(), 6u);
    EXPECT_EQ(months.front().month, "2025-11");
    EXPECT_EQ(months.back().month, "2026-04");
    for (const auto& month : months) EXPECT_GT(month.conversations, 0) << month.month;
}

}  // namespace
}  // namespace tidewatch::demo
