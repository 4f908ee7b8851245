// What is read again and what is not: by the number of times that files are opened.

#include "claude/log_memory.h"

#include <gtest/gtest.h>

#include "claude/log_scanner.h"
#include "tests/claude/claude_world.h"
#include "tests/claude/watched_files.h"

namespace tidewatch {
namespace {

using test::ClaudeWorld;
using test::LogEntry;
using test::utc;
using test::WatchedFiles;

struct LogMemoryTest : testing::Test {
    ClaudeWorld world;
    WatchedFiles files{world.files};
    LogScanner scanner{files, world.clock};
    const std::string line = LogEntry{"2026-03-11T11:00:00", 1, 1}.line();

    std::int64_t scan() { return scanner.scan().month.requests; }
    using Offsets = std::vector<std::uint64_t>;
};

TEST_F(LogMemoryTest, AnUnchangedFileIsNotOpenedAgain) {
    world.putLog("p/a.jsonl", line);
    EXPECT_EQ(scan(), 1);
    EXPECT_EQ(files.takeOpened(), Offsets{0});
    EXPECT_EQ(scan(), 1);
    static_cast<void>(scanner.scanPastMonths());
    EXPECT_EQ(files.takeOpened(), Offsets{});
}

TEST_F(LogMemoryTest, AnOldFileIsOpenedForTheHistoryAlone) {
    world.putLog("p/a.jsonl", line);
    world.touchLog("p/a.jsonl", utc("2026-01-01T00:00:00"));
    EXPECT_EQ(scan(), 0);
    EXPECT_EQ(files.takeOpened(), Offsets{});
    static_cast<void>(scanner.scanPastMonths());
    EXPECT_EQ(files.takeOpened(), Offsets{0});
    EXPECT_EQ(scan(), 0);
    EXPECT_EQ(files.takeOpened(), Offsets{});
}

TEST_F(LogMemoryTest, AGrownFileIsContinuedAtItsLastWholeLine) {
    world.putLog("p/a.jsonl", line + "{\"half");
    EXPECT_EQ(scan(), 1);
    files.takeOpened();
    world.appendToLog("p/a.jsonl", "\":1}\n" + line);
    EXPECT_EQ(scan(), 2);
    // With some bytes before it, to see that they are still the same.
    EXPECT_EQ(files.takeOpened(), Offsets{line.size() - 64});
}

TEST_F(LogMemoryTest, AShrunkFileIsReadAnew) {
    world.putLog("p/a.jsonl", line + line + line);
    EXPECT_EQ(scan(), 3);
    world.files.truncate(ClaudeWorld::logPath("p/a.jsonl"), line.size());
    EXPECT_EQ(scan(), 1);
}

TEST_F(LogMemoryTest, AReplacedFileIsReadAnewThoughItIsLarger) {
    world.putLog("p/a.jsonl", line);
    EXPECT_EQ(scan(), 1);
    world.putLog("p/a.jsonl", LogEntry{"2026-03-10T11:00:00", 1, 1}.line() + line + line);
    EXPECT_EQ(scan(), 3);
}

TEST_F(LogMemoryTest, AReplacedFileIsReadAnewThoughItsBytesBeforeTheOffsetAreTheSame) {
    const auto blanks = std::string(100, ' ') + "\n";
    world.putLog("p/a.jsonl", line + blanks);
    EXPECT_EQ(scan(), 1);
    world.putLog("p/a.jsonl", std::string(line.size() - 1, ' ') + "\n" + blanks + line);
    EXPECT_EQ(scan(), 1);
}

TEST_F(LogMemoryTest, AFileRewrittenInPlaceIsReadAnewThoughItIsLarger) {
    world.putLog("p/a.jsonl", line + line);
    EXPECT_EQ(scan(), 2);
    world.files.truncate(ClaudeWorld::logPath("p/a.jsonl"), 0);
    world.appendToLog("p/a.jsonl", std::string(2 * line.size() + 10, ' ') + "\n" + line);
    EXPECT_EQ(scan(), 1);
}

TEST_F(LogMemoryTest, AFileOfTheSameSizeModifiedLaterIsReadAnew) {
    world.putLog("p/a.jsonl", line);
    EXPECT_EQ(scan(), 1);
    world.files.truncate(ClaudeWorld::logPath("p/a.jsonl"), 0);
    world.appendToLog("p/a.jsonl", std::string(line.size(), '\n'));
    EXPECT_EQ(scan(), 0);
}

TEST_F(LogMemoryTest, AVanishedFileIsForgotten) {
    world.putLog("p/a.jsonl", line);
    world.putLog("p/b.jsonl", line);
    EXPECT_EQ(scan(), 2);
    world.files.removeDirectory(ClaudeWorld::logPath("p/a.jsonl"));
    EXPECT_EQ(scan(), 1);
    world.files.removeDirectory("/home/user/.claude");
    EXPECT_EQ(scanner.scan(), ClaudeSnapshot());
    world.putLog("p/b.jsonl", line + line);
    EXPECT_EQ(scan(), 2);
}

TEST_F(LogMemoryTest, AFileThatCouldNotBeReadIsTriedAgain) {
    world.putLog("p/a.jsonl", line);
    files.beforeOpening = [&] { world.files.removeDirectory(ClaudeWorld::logPath("p/a.jsonl")); };
    EXPECT_EQ(scan(), 0);
    world.putLog("p/a.jsonl", line);
    EXPECT_EQ(scan(), 1);
}

TEST_F(LogMemoryTest, AFileThatShrinksWhileItIsReadCountsWhatIsLeft) {
    world.putLog("p/a.jsonl", line + line);
    files.beforeOpening = [&] { world.files.truncate(ClaudeWorld::logPath("p/a.jsonl"), line.size()); };
    EXPECT_EQ(scan(), 1);
    EXPECT_EQ(scan(), 1);
}

TEST_F(LogMemoryTest, AFileThatGrowsWhileItIsReadIsContinuedByTheNextScan) {
    world.putLog("p/a.jsonl", line);
    files.beforeOpening = [&] { world.appendToLog("p/a.jsonl", line); };
    EXPECT_EQ(scan(), 1);
    EXPECT_EQ(scan(), 2);
}

TEST_F(LogMemoryTest, AnInvalidTailOfACharacterCountsAgainOnceItIsWhole) {
    world.putLog("p/a.jsonl", line + "{\"text\":\"\xC3");
    EXPECT_EQ(scan(), 0);
    world.appendToLog("p/a.jsonl", "\xA9\"}\n" + line);
    EXPECT_EQ(scan(), 2);
}

TEST_F(LogMemoryTest, AFileThatIsNotTextIsReadAgainOnlyWhenItChanges) {
    world.putLog("p/a.jsonl", line + "\xFF\n");
    EXPECT_EQ(scan(), 0);
    EXPECT_EQ(files.takeOpened(), Offsets{0});
    EXPECT_EQ(scan(), 0);
    EXPECT_EQ(files.takeOpened(), Offsets{});
}

TEST_F(LogMemoryTest, MergedLinesAreReadAgainWhenTheClockGoesBack) {
    world.putLog("p/a.jsonl",
                 LogEntry{"2026-03-11T01:00:10", 1, 1}.line() + LogEntry{"2026-03-11T01:00:20", 1, 1}.line());
    EXPECT_EQ(scanner.scan().lastFiveH.requests, 0);
    world.clock.setNow(utc("2026-03-11T06:00:15"));
    EXPECT_EQ(scanner.scan().lastFiveH.requests, 1);
    EXPECT_EQ(scanner.scan().windowStarted, utc("2026-03-11T01:00:20"));
}

TEST_F(LogMemoryTest, LinesThatOverflowTogetherDoNotEndTheProcessOutsideAnyPeriod) {
    const auto huge = LogEntry{"2026-02-11T11:00:00", INT64_MAX, 1}.line();
    world.putLog("p/a.jsonl", huge + huge);
    EXPECT_EQ(scan(), 0);
    EXPECT_EQ(scanner.scanPastMonths()->begin()->second.conversations, 2);
}

TEST_F(LogMemoryTest, ALineMayBeLongerThanAPiece) {
    const auto longLine = R"({"text":")" + std::string(std::size_t(2) << 20, 'x') +
                          R"(","timestamp":"2026-03-11T11:00:00","usage":{"output_tokens":5}})" + "\n";
    world.putLog("p/a.jsonl", line + longLine + line + longLine);
    EXPECT_EQ(scan(), 4);
    world.appendToLog("p/a.jsonl", longLine + line);
    EXPECT_EQ(scan(), 6);
}

TEST_F(LogMemoryTest, ACancelledScanHasNoPastMonths) {
    world.putLog("p/a.jsonl", line);
    static_cast<void>(scanner.scan());
    scanner.cancel();
    EXPECT_EQ(scanner.scanPastMonths(), std::nullopt);
}

}  // namespace
}  // namespace tidewatch
