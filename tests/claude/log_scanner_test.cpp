#include "claude/log_scanner.h"

#include <gmock/gmock.h>

#include "platform/fake/fake_time_zone.h"
#include "tests/claude/claude_world.h"

namespace tidewatch {
namespace {

using std::chrono::hours;
using std::chrono::seconds;
using test::ClaudeWorld;
using test::LogEntry;
using test::utc;

struct LogScannerTest : testing::Test {
    ClaudeWorld world;
    LogScanner scanner{world.files, world.clock};

    // The requests of month, week, day and the last five hours, of a single line dated so.
    std::vector<std::int64_t> requestsAt(const std::string& stamp) {
        world.putLog("p/a.jsonl", LogEntry{stamp, 1, 1}.line());
        const auto snap = scanner.scan();
        return {snap.month.requests, snap.week.requests, snap.today.requests, snap.lastFiveH.requests};
    }

    // The windows of lines dated so, with this output each.
    ClaudeWindowRoi roiOf(const std::vector<std::string>& stamps, std::int64_t output = 1) {
        std::string lines;
        for (const auto& stamp : stamps) lines += LogEntry{stamp, 1, output}.line();
        world.putLog("p/a.jsonl", lines);
        return scanner.scan().roi;
    }
};

using Requests = std::vector<std::int64_t>;

TEST_F(LogScannerTest, WithoutALogDirectoryTheSnapshotIsTheEmptyOne) {
    EXPECT_EQ(scanner.scan(), ClaudeSnapshot());
    EXPECT_EQ(scanner.scan().plan, "Max");
    EXPECT_EQ(scanner.scanPastMonths(), std::nullopt);
}

TEST_F(LogScannerTest, AMonthWithoutLinesGivesThePlanPro) {
    world.putLog("p/a.jsonl", "");
    const auto snap = scanner.scan();
    EXPECT_EQ(snap.plan, "Pro");
    EXPECT_EQ(snap.scannedAt, world.clock.now());
    EXPECT_EQ(snap.roi.possibleWindows, 55);
}

TEST_F(LogScannerTest, ThePlanFollowsTheModelWithMostOutput) {
    world.putLog("p/a.jsonl", LogEntry{"2026-03-11T11:00:00", 1, 10, 0, 0, "claude-opus-4-7"}.line() +
                                  LogEntry{"2026-03-11T11:00:00", 1, 11}.line());
    EXPECT_EQ(scanner.scan().plan, "Pro");
    world.appendToLog("p/a.jsonl", LogEntry{"2026-03-11T11:00:00", 1, 2, 0, 0, "claude-opus-4-7"}.line());
    EXPECT_EQ(scanner.scan().plan, "Max");
}

TEST_F(LogScannerTest, ALineIsAddedToItsPeriods) {
    world.putLog("p/a.jsonl",
                 LogEntry{"2026-03-11T11:00:00", 1000000, 20, 300, 4000, "claude-opus-4-7"}.line());
    const auto period = scanner.scan().today;
    EXPECT_EQ(period.inputTokens, 1000000);
    EXPECT_EQ(period.outputTokens, 20);
    EXPECT_EQ(period.cacheWriteTokens, 300);
    EXPECT_EQ(period.cacheReadTokens, 4000);
    EXPECT_EQ(period.requests, 1);
    EXPECT_EQ(period.byModel, (TokensByModel{{"claude-opus-4-7", 20}}));
    EXPECT_DOUBLE_EQ(period.estimatedUsd, 15.0 + 0.0015 + 0.005625 + 0.006);
}

TEST_F(LogScannerTest, TheCostOfSeveralModelsIsTheSumOverTheirLines) {
    world.putLog("p/a.jsonl",
                 LogEntry{"2026-03-11T11:00:00", 0, 1000000}.line() +
                     LogEntry{"2026-03-11T11:00:00", 0, 1000000, 0, 0, "claude-opus-4-7"}.line());
    EXPECT_EQ(scanner.scan().month.estimatedUsd, 90.0);
}

TEST_F(LogScannerTest, TheSameLineTwiceCountsTwice) {
    const auto line = LogEntry{"2026-03-11T11:00:00", 1, 5}.line();
    world.putLog("p/a.jsonl", line + line);
    world.putLog("q/b.jsonl", line);
    EXPECT_EQ(scanner.scan().today.requests, 3);
    EXPECT_EQ(scanner.scan().today.outputTokens, 15);
}

TEST_F(LogScannerTest, PeriodsBeginAtMidnightOfUtcAndHoldTheirBoundary) {
    EXPECT_EQ(requestsAt("2026-03-11T00:00:00"), (Requests{1, 1, 1, 0}));
    EXPECT_EQ(requestsAt("2026-03-10T23:59:59"), (Requests{1, 1, 0, 0}));
    EXPECT_EQ(requestsAt("2026-03-09T00:00:00"), (Requests{1, 1, 0, 0}));
    EXPECT_EQ(requestsAt("2026-03-08T23:59:59"), (Requests{1, 0, 0, 0}));
    EXPECT_EQ(requestsAt("2026-03-01T00:00:00"), (Requests{1, 0, 0, 0}));
    EXPECT_EQ(requestsAt("2026-02-28T23:59:59"), (Requests{0, 0, 0, 0}));
}

TEST_F(LogScannerTest, TheLastFiveHoursBeginToTheSecond) {
    EXPECT_EQ(requestsAt("2026-03-11T07:00:00"), (Requests{1, 1, 1, 1}));
    EXPECT_EQ(requestsAt("2026-03-11T06:59:59"), (Requests{1, 1, 1, 0}));
    world.clock.advance(std::chrono::milliseconds(1));
    EXPECT_EQ(requestsAt("2026-03-11T07:00:00"), (Requests{1, 1, 1, 0}));
}

TEST_F(LogScannerTest, AFutureLineIsInEveryPeriod) {
    EXPECT_EQ(requestsAt("2027-01-01T00:00:00"), (Requests{1, 1, 1, 1}));
}

TEST_F(LogScannerTest, TheLastDayOfThePreviousMonthIsInNoPeriodEvenInsideTheWeek) {
    world.clock.setNow(utc("2026-04-02T12:00:00"));  // a Thursday
    EXPECT_EQ(requestsAt("2026-03-31T12:00:00"), (Requests{0, 0, 0, 0}));
    EXPECT_EQ(requestsAt("2026-04-01T12:00:00"), (Requests{1, 1, 0, 0}));
}

TEST_F(LogScannerTest, ALineBeforeLocalMidnightMayBeOfTheNextDayOfUtc) {
    world.clock.setZone(platform::fixedZone(-hours(6)));
    world.clock.setNow(utc("2026-03-12T05:59:59"));  // 23:59:59 on the 11th
    EXPECT_EQ(requestsAt("2026-03-11T23:59:59"), (Requests{1, 1, 0, 0}));
    EXPECT_EQ(requestsAt("2026-03-12T00:00:00"), (Requests{1, 1, 1, 0}));
}

TEST_F(LogScannerTest, AZoneInTheStampIsCutOff) {
    EXPECT_EQ(requestsAt("2026-03-11 06:59:59-05:00"), (Requests{1, 1, 1, 0}));
    EXPECT_EQ(requestsAt("2026-03-11 07:00:00+09:00"), (Requests{1, 1, 1, 1}));
}

TEST_F(LogScannerTest, TheFirstAndLastLineOfFiveHoursAreKept) {
    world.putLog("p/a.jsonl", LogEntry{"2026-03-11T11:30:05", 1}.line() +
                                  LogEntry{"2026-03-11T06:00:00", 1}.line() +
                                  LogEntry{"2026-03-11T08:00:07", 1}.line());
    const auto snap = scanner.scan();
    EXPECT_EQ(snap.windowStarted, utc("2026-03-11T08:00:07"));
    EXPECT_EQ(snap.windowLastMsg, utc("2026-03-11T11:30:05"));
    world.clock.advance(hours(24));
    EXPECT_EQ(scanner.scan().windowStarted, std::nullopt);
}

TEST_F(LogScannerTest, AFileLastModifiedBeforeTheMonthIsNotReadWhateverItHolds) {
    world.putLog("p/a.jsonl", LogEntry{"2026-03-11T11:00:00", 1, 1}.line());
    world.touchLog("p/a.jsonl", utc("2026-02-28T23:59:59"));
    EXPECT_EQ(scanner.scan().month.requests, 0);
    world.touchLog("p/a.jsonl", utc("2026-03-01T00:00:00"));
    EXPECT_EQ(scanner.scan().month.requests, 1);
}

TEST_F(LogScannerTest, OnlyFilesWithTheSuffixCountAtAnyDepth) {
    const auto line = LogEntry{"2026-03-11T11:00:00", 1}.line();
    for (const auto* name : {"a.jsonl", "p/q/r/s.jsonl", "p/.q/hidden.jsonl", "p/.hidden.jsonl", "p/a.JSONL",
                             "p/a.json", "p/a.jsonl.bak", "p/jsonl"}) {
        world.putLog(name, line);
    }
    EXPECT_EQ(scanner.scan().month.requests, 2);
}

TEST_F(LogScannerTest, ADirectoryWithTheSuffixIsSearchedAndNotRead) {
    world.putLog("p.jsonl/a.jsonl", LogEntry{"2026-03-11T11:00:00", 1}.line());
    EXPECT_EQ(scanner.scan().month.requests, 1);
}

TEST_F(LogScannerTest, AFileThatIsNotUtf8IsSkippedAsAWhole) {
    const auto line = LogEntry{"2026-03-11T11:00:00", 1}.line();
    world.putLog("p/a.jsonl", line + "\xFF\n" + line);
    world.putLog("p/b.jsonl", line);
    EXPECT_EQ(scanner.scan().month.requests, 1);
}

TEST_F(LogScannerTest, AnUnreadableFileIsSkipped) {
    const auto line = LogEntry{"2026-03-11T11:00:00", 1}.line();
    world.putLog("p/a.jsonl", line);
    world.putLog("p/b.jsonl", line);
    world.files.makeUnreadable(ClaudeWorld::logPath("p/a.jsonl"));
    EXPECT_EQ(scanner.scan().month.requests, 1);
}

TEST_F(LogScannerTest, LinesThatAreNoJsonAreSkipped) {
    const auto line = LogEntry{"2026-03-11T11:00:00", 1}.line();
    world.putLog("p/a.jsonl", line + "\n\n{\"usage\":\n" + line + "nonsense \"usage\"\n" + line);
    EXPECT_EQ(scanner.scan().month.requests, 3);
}

TEST_F(LogScannerTest, ALastLineWithoutALineFeedCountsIfItIsWhole) {
    auto line = LogEntry{"2026-03-11T11:00:00", 1}.line();
    line.pop_back();
    world.putLog("p/a.jsonl", line);
    EXPECT_EQ(scanner.scan().month.requests, 1);
    world.appendToLog("p/a.jsonl", "\n" + line.substr(0, 20));
    EXPECT_EQ(scanner.scan().month.requests, 1);
    world.appendToLog("p/a.jsonl", line.substr(20));
    EXPECT_EQ(scanner.scan().month.requests, 2);
    world.appendToLog("p/a.jsonl", "x");
    EXPECT_EQ(scanner.scan().month.requests, 1);
}

TEST_F(LogScannerTest, LinesInOneWindowAreOneActiveWindow) {
    EXPECT_EQ(roiOf({"2026-03-10T19:59:00", "2026-03-10T20:01:00"}).activeWindows, 2);
    EXPECT_EQ(roiOf({"2026-03-10T20:01:00", "2026-03-10T23:59:00"}).activeWindows, 1);
    EXPECT_EQ(roiOf({"2026-03-09T23:59:00", "2026-03-10T00:01:00"}).activeWindows, 2);
    EXPECT_EQ(roiOf({"2026-03-09T00:00:00", "2026-03-09T04:59:59"}).activeWindows, 1);
    EXPECT_EQ(roiOf({"2026-03-09T04:59:59", "2026-03-09T05:00:00"}).activeWindows, 2);
}

TEST_F(LogScannerTest, AWindowWithInputAloneIsActive) {
    EXPECT_EQ(roiOf({"2026-03-10T19:59:00"}, 0).activeWindows, 1);
}

TEST_F(LogScannerTest, AWindowIsHeavyFromFiftyThousandAndOneTokensOn) {
    EXPECT_EQ(roiOf({"2026-03-10T20:00:00", "2026-03-10T23:00:00"}, 25000).heavyWindows, 0);
    EXPECT_EQ(roiOf({"2026-03-10T20:00:00"}, 50001).heavyWindows, 1);
    EXPECT_EQ(roiOf({"2026-03-10T20:00:00", "2026-03-10T00:00:00"}, 50001).heavyWindows, 2);
}

TEST_F(LogScannerTest, TheFirstAndSecondOfAMonthGiveTenPossibleWindows) {
    world.putLog("p/a.jsonl", "");
    for (const auto& [now, windows] :
         std::vector<std::pair<const char*, int>>{{"2026-03-01T00:00:00", 10},
                                                  {"2026-03-02T23:59:59", 10},
                                                  {"2026-03-03T00:00:00", 15},
                                                  {"2026-03-31T23:59:59", 155}}) {
        world.clock.setNow(utc(now));
        EXPECT_EQ(scanner.scan().roi.possibleWindows, windows) << now;
    }
}

TEST_F(LogScannerTest, ANewMonthBeginsWithNothing) {
    EXPECT_EQ(requestsAt("2026-03-11T11:00:00").front(), 1);
    world.clock.setNow(utc("2026-04-01T00:00:00"));
    EXPECT_EQ(scanner.scan().month.requests, 0);
    EXPECT_EQ(scanner.scan().roi.activeWindows, 0);
}

TEST_F(LogScannerTest, AnOverflowOfASumEndsTheProcess) {
    const auto line = LogEntry{"2026-03-11T11:00:00", 1, INT64_MAX}.line();
    world.putLog("p/a.jsonl", line);
    EXPECT_EQ(scanner.scan().month.outputTokens, INT64_MAX);
    world.appendToLog("p/a.jsonl", line);
    EXPECT_DEATH(static_cast<void>(scanner.scan()), "a count of tokens overflowed");
}

struct PastMonthsTest : LogScannerTest {
    PastMonths scanPast() {
        static_cast<void>(scanner.scan());
        return scanner.scanPastMonths().value();
    }
    static constexpr auto february = std::chrono::year(2026) / std::chrono::February;
    static constexpr auto march = std::chrono::year(2026) / std::chrono::March;
};

TEST_F(PastMonthsTest, AFileOfAnyAgeIsRead) {
    world.putLog("p/a.jsonl", LogEntry{"2026-02-11T11:00:00", 0, 5000}.line());
    world.touchLog("p/a.jsonl", utc("2026-02-11T11:00:00"));
    EXPECT_EQ(scanPast(), (PastMonths{{february, {1, 1, 5}}}));
}

TEST_F(PastMonthsTest, ThousandsAreTruncatedLineByLine) {
    const auto line = LogEntry{"2026-02-11T11:00:00", 0, 999}.line();
    world.putLog("p/a.jsonl", line + line + LogEntry{"2026-02-11T11:00:00", 0, 1999}.line());
    EXPECT_EQ(scanPast(), (PastMonths{{february, {1, 3, 1}}}));
}

TEST_F(PastMonthsTest, ALineWithInputAloneCountsNowhere) {
    world.putLog("p/a.jsonl", LogEntry{"2026-02-11T11:00:00", 5, 0}.line());
    EXPECT_EQ(scanPast(), PastMonths());
}

TEST_F(PastMonthsTest, TwoFilesWithLinesOfOneWindowGiveOne) {
    world.putLog("p/a.jsonl", LogEntry{"2026-02-11T11:00:00", 0, 1}.line());
    world.putLog("p/b.jsonl", LogEntry{"2026-02-11T14:59:59", 0, 1}.line());
    EXPECT_EQ(scanPast(), (PastMonths{{february, {1, 2, 0}}}));
}

TEST_F(PastMonthsTest, TheMonthIsTheLocalOne) {
    world.putLog("p/a.jsonl", LogEntry{"2026-03-01T04:00:00", 0, 1000}.line());
    world.clock.setZone(platform::fixedZone(-hours(6)));
    EXPECT_EQ(scanPast(), (PastMonths{{february, {1, 1, 1}}}));
    world.clock.setZone(platform::fixedZone(hours(2)));
    EXPECT_EQ(scanPast(), PastMonths());
}

TEST_F(PastMonthsTest, AFutureMonthIsNotTheCurrentOne) {
    world.putLog("p/a.jsonl", LogEntry{"2027-03-01T04:00:00", 0, 1000}.line());
    EXPECT_EQ(scanPast(), (PastMonths{{std::chrono::year(2027) / std::chrono::March, {1, 1, 1}}}));
}

TEST_F(PastMonthsTest, AMonthOfAnOffsetThatIsNoQuarterIsToldApart) {
    world.clock.setNow(utc("2026-04-11T12:00:00"));
    world.putLog("p/a.jsonl", LogEntry{"2026-02-28T23:52:59", 0, 1000}.line() +
                                  LogEntry{"2026-02-28T23:53:00", 0, 1000}.line());
    EXPECT_EQ(scanPast(), (PastMonths{{february, {1, 2, 2}}}));
    world.clock.setZone(platform::fixedZone(seconds(7 * 60)));
    EXPECT_EQ(scanPast(), (PastMonths{{february, {1, 1, 1}}, {march, {1, 1, 1}}}));
    world.appendToLog("p/a.jsonl", LogEntry{"2026-02-28T23:52:00", 0, 1000}.line());
    EXPECT_EQ(scanPast(), (PastMonths{{february, {1, 2, 2}}, {march, {1, 1, 1}}}));
}

TEST_F(PastMonthsTest, ADaylightSavingDayKeepsItsWindowsInUtc) {
    world.clock.setNow(utc("2026-04-11T12:00:00"));
    world.clock.setZone(platform::madridZone());
    // Summer time begins at 01:00 UTC on 2026-03-29; the month ends at 22:00 UTC.
    world.putLog("p/a.jsonl", LogEntry{"2026-03-29T00:59:59", 0, 1}.line() +
                                  LogEntry{"2026-03-29T04:59:59", 0, 1}.line() +
                                  LogEntry{"2026-03-29T05:00:00", 0, 1}.line() +
                                  LogEntry{"2026-03-31T21:59:59", 0, 1}.line() +
                                  LogEntry{"2026-03-31T22:00:00", 0, 1}.line());
    EXPECT_EQ(scanPast(), (PastMonths{{march, {3, 4, 0}}}));
}

}  // namespace
}  // namespace tidewatch
