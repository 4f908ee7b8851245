// The insights' tiles with little data, and goals that are exactly reached.

#include <gtest/gtest.h>

#include <string>

#include "shell/views/stats_scene.h"

namespace tidewatch {
namespace {

constexpr int wholeRecord = 2;

enum Tile { peak, total, mean, best, score, constancy };

struct InsightsTextTest : testing::Test, StatsWorld {
    /// "value / subtitle" of a tile as it is now.
    [[nodiscard]] std::string shown(Tile tile) {
        const auto row =
            dashboard_.insights()->tiles()->index(tile).data(RowListModel::rowRole).value<StatTile>();
        return (row.value + " / " + row.subtitle).toStdString();
    }
    void day(const char* key, std::int64_t seconds) {
        services_.counting.days.set(Seconds(seconds), DayKey(key));
    }
    void hour(const char* key, const char* app, int seconds) {
        for (int i = 0; i < seconds; ++i) services_.counting.hours.incrementApp(AppId(app), HourKey(key));
    }
    void insightsOverAll() {
        appear();
        dashboard_.insights()->selectRange(wholeRecord);
    }
};

TEST_F(InsightsTextTest, WithoutARecordTheWholeIsSinceTheBeginning) {
    insightsOverAll();
    EXPECT_EQ(shown(total), "0s / desde el inicio");
    EXPECT_EQ(shown(constancy), "0 / días activos");
    EXPECT_EQ(shown(best), "0s / —");
    EXPECT_EQ(shown(score), "— / —");
    EXPECT_EQ(shown(peak), "— / hora más activa");
}

TEST_F(InsightsTextTest, TheWholeIsSinceTheFirstDayOnRecordWhateverItHolds) {
    day("2025-11-21", 0);
    day("2026-01-15", 3720);
    insightsOverAll();
    EXPECT_EQ(shown(total), "1h 2m / desde vie 21 nov");
    EXPECT_EQ(shown(best), "1h 2m / jue 15 ene");
    EXPECT_EQ(shown(mean), "1h 2m / días con trabajo");
    EXPECT_EQ(shown(constancy), "1/56 / días activos");
}

TEST_F(InsightsTextTest, DaysWithoutASecondHaveNoBestAmongThem) {
    day("2026-01-14", 0);
    day("2026-01-15", 0);
    insightsOverAll();
    EXPECT_EQ(shown(best), "0s / —");
    EXPECT_EQ(shown(constancy), "0/2 / días activos");
}

TEST_F(InsightsTextTest, AKeyThatIsNoDateLeavesTheActiveDaysAlone) {
    day("2026-01-15", 60);
    day("zzz", 60);
    insightsOverAll();
    EXPECT_EQ(shown(constancy), "2 / días activos");
}

TEST_F(InsightsTextTest, APeakOfLessThanAMinuteHasNoAverage) {
    hour("2026-01-15 09", "code", 59);
    insightsOverAll();
    EXPECT_EQ(shown(peak), "9 am / hora más activa");
    hour("2026-01-15 09", "code", 1);
    dashboard_.insights()->selectRange(0);
    EXPECT_EQ(shown(peak), "9 am / prom. 9 am");
}

TEST_F(InsightsTextTest, AnAverageBetweenTwoHoursIsTheLater) {
    hour("2026-01-14 22", "code", 60);
    hour("2026-01-15 23", "code", 61);
    insightsOverAll();
    EXPECT_EQ(shown(peak), "11 pm / prom. 11 pm");
    hour("2026-01-13 00", "code", 70);
    dashboard_.insights()->selectRange(0);
    EXPECT_EQ(shown(peak), "12 am / prom. 3 pm");
}

TEST_F(InsightsTextTest, TheBestScoreIsRoundedUpwardAtHalvesAndHasItsDay) {
    hour("2026-01-14 09", "code", 625);
    hour("2026-01-14 10", "supertuxkart", 375);
    hour("2026-01-15 09", "code", 299);
    insightsOverAll();
    EXPECT_EQ(shown(score), "63% / mié 14 ene");
}

TEST_F(InsightsTextTest, TheRangesSayHowFarTheyReach) {
    day("2020-01-01", 100);
    appear();
    EXPECT_EQ(shown(total), "0s / últimos 7 días");
    dashboard_.insights()->selectRange(1);
    EXPECT_EQ(shown(total), "0s / últimos 30 días");
    dashboard_.insights()->selectRange(wholeRecord);
    EXPECT_EQ(shown(total), "1m / desde mié 1 ene");
}

struct GoalMarkTest : InsightsTextTest {
    [[nodiscard]] GoalRow goal(int row) {
        return dashboard_.goals()->progress()->index(row).data(RowListModel::rowRole).value<GoalRow>();
    }
};

TEST_F(GoalMarkTest, EveryPercentageThatCanBeSetIsReachedByExactlyItself) {
    presenter_.selectTab(goalsTab);
    for (int step = 0; step < 20; ++step) dashboard_.goals()->decrease("dailyProductivity");
    for (int percent = 30; percent <= 100; percent += 5) {
        SCOPED_TRACE(percent);
        machine_.clock.advance(std::chrono::hours(24));
        book("code", today(), 9, 0, 10 * percent);
        book("supertuxkart", today(), 9, 10, 1000 - 10 * percent);
        appear();
        EXPECT_EQ(goal(1).mark, "✓");
        EXPECT_EQ(goal(1).figures, QString("%1% / %1%").arg(percent));
        EXPECT_EQ(goal(1).fraction, 1);
        book("supertuxkart", today(), 9, 20, 1);
        appear();
        EXPECT_EQ(goal(1).mark, "");
        dashboard_.goals()->increase("dailyProductivity");
    }
}

TEST_F(GoalMarkTest, EveryNumberOfHoursThatCanBeSetIsReachedByExactlyItsSeconds) {
    presenter_.selectTab(goalsTab);
    for (int step = 0; step < 20; ++step) dashboard_.goals()->decrease("dailyHours");
    for (int halfHours = 2; halfHours <= 32; ++halfHours) {
        SCOPED_TRACE(halfHours);
        services_.counting.days.set(Seconds(halfHours * 1800 - 1), today());
        appear();
        EXPECT_EQ(goal(0).mark, "");
        services_.counting.days.set(Seconds(halfHours * 1800), today());
        appear();
        EXPECT_EQ(goal(0).mark, "✓");
        dashboard_.goals()->increase("dailyHours");
    }
}

}  // namespace
}  // namespace tidewatch
