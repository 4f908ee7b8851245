// The overview: comparison, hours and insights.

#include <gtest/gtest.h>

#include "shell/views/stats_presenter_fixture.h"

namespace tidewatch {
namespace {

using std::chrono::seconds;

// Comparison.

TEST_F(StatsPresenterTest, WithoutAScoreThereIsNoComparison) {
    bookScore(daysAgo(1), 100, 100);
    bookScore(today(), 29, 0);
    showTab(overviewTab);
    EXPECT_EQ(comparison(), "");
}

TEST_F(StatsPresenterTest, YesterdayIsComparedWithFirst) {
    bookScore(daysAgo(1), 50, 50);
    bookScore(today(), 75, 25);
    showTab(overviewTab);
    EXPECT_EQ(comparison(), "+25% vs ayer");
    EXPECT_EQ(dashboard_.overview()->comparisonColor().name(), "#7bd88f");
}

TEST_F(StatsPresenterTest, ALowerScoreHasItsOwnMinusSignInTheDistractingColour) {
    bookScore(daysAgo(1), 75, 25);
    bookScore(today(), 50, 50);
    showTab(overviewTab);
    EXPECT_EQ(comparison(), "-25% vs ayer");
    EXPECT_EQ(dashboard_.overview()->comparisonColor().name(), "#d15757");
}

TEST_F(StatsPresenterTest, WithoutYesterdayTheMeanOfTheWeekIsComparedWith) {
    bookScore(daysAgo(3), 50, 50);
    bookScore(daysAgo(5), 60, 40);
    bookScore(today(), 75, 25);
    showTab(overviewTab);
    EXPECT_EQ(comparison(), "+20% vs prom 7d");
}

TEST_F(StatsPresenterTest, WithNoPreviousScoreAndNoMeanThereIsNoComparison) {
    bookScore(today(), 75, 25);
    showTab(overviewTab);
    EXPECT_EQ(comparison(), "");
}

TEST_F(StatsPresenterTest, ADeltaOfZeroPrintsAPlusSignInTheProductiveColour) {
    bookScore(daysAgo(1), 60, 40);
    bookScore(today(), 60, 40);
    showTab(overviewTab);
    EXPECT_EQ(comparison(), "+0% vs ayer");
    EXPECT_EQ(dashboard_.overview()->comparisonColor().name(), "#7bd88f");
}

// Hours.

[[nodiscard]] double heightOf(OverviewPresenter* overview, int hour) {
    return overview->hours()->index(hour).data(RowListModel::rowRole).value<HourBar>().height;
}

TEST_F(StatsPresenterTest, AQuietDaysBarsStayLow) {
    book("code", today(), 9, 0, 10);
    book("code", today(), 10, 0, 30);
    book("code", today(), 11, 0, 40);
    showTab(overviewTab);
    EXPECT_DOUBLE_EQ(heightOf(dashboard_.overview(), 9), 0.04);
    EXPECT_DOUBLE_EQ(heightOf(dashboard_.overview(), 10), 0.05);
    EXPECT_NEAR(heightOf(dashboard_.overview(), 11), 40.0 / 600, 1e-9);
}

TEST_F(StatsPresenterTest, HoursAreLabelledTwelveAtMidnightAndAtNoon) {
    showTab(overviewTab);
    const auto label = [&](int hour) {
        return dashboard_.overview()->hours()->index(hour).data(RowListModel::rowRole).value<HourBar>().label;
    };
    EXPECT_EQ(label(0), "12a");
    EXPECT_EQ(label(11), "11a");
    EXPECT_EQ(label(12), "12p");
    EXPECT_EQ(label(23), "11p");
}

// Insights.

TEST_F(StatsPresenterTest, ASessionAcrossMidnightIsOneSession) {
    const auto yesterday = daysAgo(1);
    for (int minute : {40, 50}) book("code", yesterday, 23, minute, 600);
    for (int minute : {0, 10}) book("code", today(), 0, minute, 600);
    showTab(overviewTab);
    EXPECT_EQ(dashboard_.insights()->sessionLength(), "40m");
    EXPECT_EQ(dashboard_.insights()->sessionDay(), "mié 14 ene");
    EXPECT_EQ(dashboard_.insights()->sessionTimes(), "11:40 pm – 12:20 am");
}

TEST_F(StatsPresenterTest, ConstancyIsMeasuredAgainstTheDaysBetweenFirstAndLast) {
    book("code", daysAgo(1), 9, 0, 60);
    book("code", today(), 9, 0, 60);
    showTab(overviewTab);
    const auto tile = dashboard_.insights()->tiles()->index(5).data(RowListModel::rowRole).value<StatTile>();
    EXPECT_EQ(tile.value, "2/2");
}

TEST_F(StatsPresenterTest, TheLookBackIsRenewedEveryEightSecondsWhileItIsOnShow) {
    showTab(overviewTab);
    book("code", today(), 9, 0, 600);
    machine_.mainLoop.runFor(seconds(7));
    EXPECT_FALSE(dashboard_.insights()->hasSession());
    machine_.mainLoop.runFor(seconds(1));
    EXPECT_TRUE(dashboard_.insights()->hasSession());
    presenter_.selectTab(goalsTab);
    book("code", today(), 9, 10, 600);
    machine_.mainLoop.runFor(seconds(16));
    EXPECT_EQ(dashboard_.insights()->sessionLength(), "10m");
}

}  // namespace
}  // namespace tidewatch
