// The header, which steps through the days.

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "shell/views/stats_presenter_fixture.h"

namespace tidewatch {
namespace {

using std::chrono::hours;
using std::chrono::seconds;

TEST_F(StatsPresenterTest, TheHeadStepsThroughTheDaysButNotIntoTheFuture) {
    appear();
    auto& header = *dashboard_.header();
    EXPECT_EQ(header.date(), "jue 15 ene");
    EXPECT_FALSE(header.canGoForward());
    header.nextDay();
    EXPECT_EQ(header.date(), "jue 15 ene");
    header.previousDay();
    header.previousDay();
    EXPECT_EQ(header.date(), "mar 13 ene");
    EXPECT_TRUE(header.canGoForward());
    header.nextDay();
    EXPECT_EQ(header.date(), "mié 14 ene");
    header.today();
    EXPECT_EQ(header.date(), "jue 15 ene");
}

TEST_F(StatsPresenterTest, TheHeadLetsForwardWhenMidnightPassesWithTheWindowOpen) {
    machine_.clock.advance(hours(15) - seconds(3));
    appear();
    auto& header = *dashboard_.header();
    const QSignalSpy changed(&header, &HeaderPresenter::dateChanged);
    machine_.mainLoop.runFor(seconds(2));
    EXPECT_FALSE(header.canGoForward());
    machine_.mainLoop.runFor(seconds(2));
    EXPECT_TRUE(header.canGoForward());
    EXPECT_EQ(header.date(), "jue 15 ene");
    machine_.mainLoop.runFor(seconds(10));
    EXPECT_EQ(changed.count(), 1);
    header.nextDay();
    EXPECT_EQ(header.date(), "vie 16 ene");
    EXPECT_FALSE(header.canGoForward());
}

TEST_F(StatsPresenterTest, TheHeadKeepsFromTomorrowWhenTheClockIsSetBackToTheDayOnShow) {
    appear();
    auto& header = *dashboard_.header();
    header.previousDay();
    EXPECT_TRUE(header.canGoForward());
    machine_.clock.setNow(machine_.clock.now() - hours(24));
    machine_.mainLoop.runFor(seconds(2));
    EXPECT_EQ(header.date(), "mié 14 ene");
    EXPECT_FALSE(header.canGoForward());
}

TEST_F(StatsPresenterTest, TheHeadIsRightAgainWhenTheWindowComesUpAfterMidnight) {
    appear();
    presenter_.disappear();
    machine_.clock.advance(hours(24));
    appear();
    EXPECT_EQ(dashboard_.header()->date(), "jue 15 ene");
    EXPECT_TRUE(dashboard_.header()->canGoForward());
}

}  // namespace
}  // namespace tidewatch
