#include "analysis/reward_engine.h"

#include <gtest/gtest.h>

#include "analysis/analysis_fixture.h"
#include "platform/fake/fake_time_zone.h"
#include "tests/support/fake_world.h"

namespace tidewatch {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;

constexpr int hour = 3600;

class RewardEngineTest : public testing::Test {
protected:
    int starsForTime(int seconds) {
        fixture_.setTime(today_, seconds);
        return rewards_.stars(today_);
    }

    /// Stars of a day without any time but with these classified seconds.
    int starsForScore(int productive, int distracting) {
        const auto day = toDayKey(nextDay_++);
        fixture_.addClassified(day, productive, distracting);
        return rewards_.stars(day);
    }

    /// Gives the days from `first` through `last` three stars each, for their time.
    void makeGood(sys_days first, sys_days last) {
        for (auto day = first; day <= last; day += days(1)) fixture_.setTime(day, 6 * hour);
    }

    test::FakeWorld world_;  // Thursday, 2026-01-15, 09:00
    test::AnalysisFixture fixture_{world_};
    const RewardEngine& rewards_ = fixture_.goals.rewards;
    const DayKey today_{"2026-01-15"};
    sys_days nextDay_ = 2020y / 1 / 1;
};

TEST_F(RewardEngineTest, HalfTheTimeGivesTwoStarsAndLessThanASixthNone) {
    EXPECT_EQ(starsForTime(3 * hour), 2);
    EXPECT_EQ(starsForTime(59 * 60), 0);
}

TEST_F(RewardEngineTest, StarsForTimeBeginAtASixthAHalfAndFiveSixths) {
    EXPECT_EQ(starsForTime(0), 0);
    EXPECT_EQ(starsForTime(1 * hour - 1), 0);
    EXPECT_EQ(starsForTime(1 * hour), 1);
    EXPECT_EQ(starsForTime(3 * hour - 1), 1);
    EXPECT_EQ(starsForTime(5 * hour - 1), 2);
    EXPECT_EQ(starsForTime(5 * hour), 3);
}

TEST_F(RewardEngineTest, StarsForProductivityBeginAtAQuarterAndThreeQuarters) {
    EXPECT_EQ(starsForScore(19, 81), 0);
    EXPECT_EQ(starsForScore(20, 80), 1);
    EXPECT_EQ(starsForScore(59, 41), 1);
    EXPECT_EQ(starsForScore(61, 39), 2);
    EXPECT_EQ(starsForScore(100, 0), 2);
}

TEST_F(RewardEngineTest, ThreeFifthsAgainstTheGoalOfFourFifthsFallShortByARoundingAndGiveOneStar) {
    // As doubles, 0.6 / 0.8 is one bit below three quarters, whatever the seconds are.
    ASSERT_EQ(fixture_.goals.store.settings().dailyProductivity, 0.8);
    EXPECT_EQ(starsForScore(60, 40), 1);
    EXPECT_EQ(starsForScore(18, 12), 1);
    EXPECT_EQ(starsForScore(10800, 7200), 1);
    EXPECT_EQ(starsForScore(10801, 7200), 2);
}

TEST_F(RewardEngineTest, WhereTheQuotientIsExactThreeQuartersOfTheGoalGiveTwoStars) {
    fixture_.goals.store.setSettings({.dailyProductivity = 0.5});
    EXPECT_EQ(starsForScore(375, 625), 2);
    EXPECT_EQ(starsForScore(374, 626), 1);
    EXPECT_EQ(starsForScore(125, 875), 1);
    EXPECT_EQ(starsForScore(124, 876), 0);
}

TEST_F(RewardEngineTest, BothGoalsReachedGiveFiveStarsAndExceededNoMore) {
    fixture_.setTime(today_, 6 * hour);
    fixture_.addClassified(today_, 80, 20);
    EXPECT_EQ(rewards_.starsToday(), 5);
    fixture_.setTime(today_, 16 * hour);
    fixture_.addClassified(today_, 900, 0);
    EXPECT_EQ(rewards_.starsToday(), 5);
}

TEST_F(RewardEngineTest, TwentyNineClassifiedSecondsGiveNoStarAndKeepAStreakAliveByTheTime) {
    fixture_.setTime(today_, 6 * hour);
    fixture_.addClassified(today_, 29, 0);
    fixture_.addNeutral(today_, 100);
    EXPECT_EQ(rewards_.starsToday(), 3);
    EXPECT_EQ(rewards_.currentStreak(), 1);
    fixture_.addClassified(today_, 1, 0);
    EXPECT_EQ(rewards_.starsToday(), 5);
}

TEST_F(RewardEngineTest, AStreakLastsWhileTodayIsNotThereYet) {
    makeGood(2026y / 1 / 13, 2026y / 1 / 14);
    fixture_.setTime(today_, 3 * hour);
    ASSERT_EQ(rewards_.starsToday(), 2);
    EXPECT_EQ(rewards_.currentStreak(), 2);
    fixture_.setTime(today_, 5 * hour);
    ASSERT_EQ(rewards_.starsToday(), 3);
    EXPECT_EQ(rewards_.currentStreak(), 3);
}

TEST_F(RewardEngineTest, ADayBeforeThatFellShortEndsTheStreak) {
    makeGood(2026y / 1 / 10, 2026y / 1 / 15);
    fixture_.setTime(2026y / 1 / 14, 3 * hour);
    EXPECT_EQ(rewards_.currentStreak(), 1);
}

TEST_F(RewardEngineTest, TodayAndYesterdayShortIsNoStreak) {
    makeGood(2026y / 1 / 1, 2026y / 1 / 13);
    EXPECT_EQ(rewards_.currentStreak(), 0);
}

TEST_F(RewardEngineTest, FourHundredAndOneGoodDaysAreAStreakOfFourHundred) {
    const sys_days today = 2026y / 1 / 15;
    makeGood(today - days(398), today);
    EXPECT_EQ(rewards_.currentStreak(), 399);
    makeGood(today - days(400), today);
    EXPECT_EQ(rewards_.currentStreak(), 400);
    fixture_.setTime(today, 0);
    EXPECT_EQ(rewards_.currentStreak(), 400) << "four hundred up to yesterday";
}

TEST_F(RewardEngineTest, ALowerGoalMakesPastDaysGoodAtOnce) {
    for (auto day = sys_days(2026y / 1 / 6); day <= sys_days(2026y / 1 / 15); day += days(1)) {
        fixture_.setTime(day, 3 * hour);
    }
    EXPECT_EQ(rewards_.currentStreak(), 0);
    GoalSettings goals;
    goals.dailyHours = 3.5;
    fixture_.goals.store.setSettings(goals);
    EXPECT_EQ(rewards_.currentStreak(), 10);
}

TEST_F(RewardEngineTest, AnotherClassificationChangesPastDays) {
    const DayKey yesterday("2026-01-14");
    fixture_.setTime(yesterday, 3 * hour);
    for (int i = 0; i < 60; ++i) fixture_.apps.incrementApp(AppId("org.example.Editor"), yesterday);
    EXPECT_EQ(rewards_.stars(yesterday), 2);
    EXPECT_EQ(rewards_.currentStreak(), 0);
    fixture_.categories.setCategory(Category::development, AppId("org.example.Editor"));
    EXPECT_EQ(rewards_.stars(yesterday), 4);
    EXPECT_EQ(rewards_.currentStreak(), 1);
}

TEST_F(RewardEngineTest, AGoalThatIsNotAboveZeroSwitchesOffItsStars) {
    fixture_.setTime(today_, 6 * hour);
    fixture_.addClassified(today_, 60, 0);
    fixture_.goals.store.setSettings({.dailyHours = 0});
    EXPECT_EQ(rewards_.starsToday(), 2);
    fixture_.goals.store.setSettings({.dailyProductivity = -1});
    EXPECT_EQ(rewards_.starsToday(), 3);
    fixture_.goals.store.setSettings({.dailyHours = 0, .dailyProductivity = 0});
    EXPECT_EQ(rewards_.starsToday(), 0);
    EXPECT_EQ(rewards_.currentStreak(), 0);
}

TEST_F(RewardEngineTest, ADayWithoutARecordHasNoStars) {
    EXPECT_EQ(rewards_.stars(DayKey("2019-05-01")), 0);
    EXPECT_EQ(rewards_.starsToday(), 0);
    EXPECT_EQ(rewards_.starsThisMonth(), 0);
}

TEST_F(RewardEngineTest, TheMonthCountsFromTheFirstThroughToday) {
    fixture_.setTime(2025y / 12 / 31, 6 * hour);
    fixture_.setTime(2026y / 1 / 1, 6 * hour);
    fixture_.setTime(2026y / 1 / 14, 3 * hour);
    fixture_.setTime(today_, 1 * hour);
    fixture_.setTime(2026y / 1 / 16, 6 * hour);
    EXPECT_EQ(rewards_.starsThisMonth(), 3 + 2 + 1);
}

TEST_F(RewardEngineTest, AStreakGoesByTheCalendarAndTodaysStarsByTheLogicalDay) {
    fixture_.settings.setDayStartHour(4);
    world_.clock.setNow(sys_days(2026y / 1 / 15) + 2h);
    makeGood(2026y / 1 / 12, 2026y / 1 / 14);
    EXPECT_EQ(rewards_.starsToday(), 3) << "still the 14th";
    EXPECT_EQ(rewards_.currentStreak(), 3);
}

TEST_F(RewardEngineTest, AStreakCrossesTheNightsThatChangeTheClock) {
    world_.clock.setZone(platform::madridZone());
    makeGood(2026y / 3 / 20, 2026y / 10 / 31);
    const auto length = (sys_days(2026y / 10 / 31) - sys_days(2026y / 3 / 20)).count() + 1;
    for (const auto time : {0h, 1h, 22h}) {
        world_.clock.setNow(sys_days(2026y / 10 / 31) + time);
        EXPECT_EQ(rewards_.currentStreak(), length);
    }
}

TEST_F(RewardEngineTest, NegativeTimeIsHarmless) {
    fixture_.setTime(today_, -6 * hour);
    EXPECT_EQ(rewards_.starsToday(), 0);
}

}  // namespace
}  // namespace tidewatch
