#include "claude/claude_snapshot.h"

#include <gtest/gtest.h>

namespace tidewatch {
namespace {

TEST(ClaudeSnapshot, TheEmptyOneIsOfThePlanMaxAndNeverScanned) {
    const ClaudeSnapshot empty;
    EXPECT_EQ(empty.plan, "Max");
    EXPECT_EQ(empty.scannedAt, distantPast);
    EXPECT_FALSE(empty.windowStarted);
    EXPECT_EQ(empty.month, ClaudeUsagePeriod());
}

TEST(ClaudeUsagePeriod, TokensAreShortened) {
    EXPECT_EQ(fmtK(999), "999");
    EXPECT_EQ(fmtK(1000), "1K");
    EXPECT_EQ(fmtK(999999), "1000K");
    EXPECT_EQ(fmtK(1000000), "1.0M");
    EXPECT_EQ(fmtK(12345678), "12.3M");
    EXPECT_EQ(fmtK(0), "0");
    EXPECT_EQ(fmtK(-5000), "-5000");
}

TEST(ClaudeUsagePeriod, ModelsHaveAShortName) {
    EXPECT_EQ(shortModel("claude-opus-4-7"), "Opus");
    EXPECT_EQ(shortModel("claude-sonnet-4-6"), "Sonnet");
    EXPECT_EQ(shortModel("claude-haiku-4-5"), "Haiku");
    EXPECT_EQ(shortModel("opus-haiku"), "Opus");
    EXPECT_EQ(shortModel("CLAUDE-OPUS"), "CLAUDE-OPUS");
    EXPECT_EQ(shortModel("unknown"), "unknown");
}

TEST(ClaudeUsagePeriod, TheTotalIncludesCacheReads) {
    ClaudeUsagePeriod period;
    period.inputTokens = 1;
    period.outputTokens = 20;
    period.cacheWriteTokens = 300;
    period.cacheReadTokens = 4000;
    EXPECT_EQ(period.totalTokens(), 4321);
}

TEST(ClaudeUsagePeriod, TheTopModelIsTheOneWithMostOutput) {
    ClaudeUsagePeriod period;
    EXPECT_FALSE(period.topModel());
    period.byModel = {{"a", 1}, {"b", 5}, {"c", 3}};
    EXPECT_EQ(period.topModel(), "b");
    period.byModel = {{"a", 0}};
    EXPECT_EQ(period.topModel(), "a");
}

TEST(ClaudeUsagePeriod, TheCostHasTwoDecimals) {
    ClaudeUsagePeriod period;
    EXPECT_EQ(period.displayCost(), "$0.00");
    period.estimatedUsd = 1234.567;
    EXPECT_EQ(period.displayCost(), "$1234.57");
}

TEST(ClaudeWindowRoi, EfficiencyStaysAtOneWithMoreWindowsThanPossible) {
    EXPECT_EQ((ClaudeWindowRoi{12, 10, 0}).efficiency(), 1.0);
    EXPECT_EQ((ClaudeWindowRoi{5, 10, 0}).efficiency(), 0.5);
    EXPECT_EQ((ClaudeWindowRoi{5, 0, 0}).efficiency(), 0.0);
}

TEST(ClaudeWindowRoi, TheSubscriptionIsSharedByTheActiveWindows) {
    EXPECT_EQ((ClaudeWindowRoi{4, 10, 0}).costPerWindow(100), 25.0);
    EXPECT_EQ((ClaudeWindowRoi{0, 10, 0}).costPerWindow(100), 0.0);
    EXPECT_EQ((ClaudeWindowRoi{4, 10, 0}).extractedUsd(100), 40.0);
}

}  // namespace
}  // namespace tidewatch
