#include "analysis/goal_evaluator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "analysis/analysis_fixture.h"
#include "platform/fake/fake_time_zone.h"
#include "tests/support/fake_world.h"

namespace tidewatch {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;

std::vector<std::string> texts(const std::vector<DayKey>& keys) {
    std::vector<std::string> result;
    for (const auto& key : keys) result.push_back(key.text());
    return result;
}

class GoalEvaluatorTest : public testing::Test {
protected:
    void setGoals(const GoalSettings& goals) { fixture_.goals.store.setSettings(goals); }

    test::FakeWorld world_;  // Thursday, 2026-01-15, 09:00
    test::AnalysisFixture fixture_{world_};
    const GoalEvaluator& evaluator_ = fixture_.goals.evaluator;
};

TEST_F(GoalEvaluatorTest, OnAMondayTheWeekHasOneDayOnASundaySeven) {
    EXPECT_EQ(texts(evaluator_.dayKeysInSameWeekAs(sys_days(2026y / 1 / 12) + 12h)),
              std::vector<std::string>{"2026-01-12"});
    EXPECT_EQ(texts(evaluator_.dayKeysInSameWeekAs(sys_days(2026y / 1 / 18) + 23h + 59min + 59s)),
              (std::vector<std::string>{"2026-01-12", "2026-01-13", "2026-01-14", "2026-01-15", "2026-01-16",
                                        "2026-01-17", "2026-01-18"}));
}

TEST_F(GoalEvaluatorTest, OnTheFirstOfAMonthTheMonthHasOneDay) {
    EXPECT_EQ(texts(evaluator_.dayKeysInSameMonthAs(sys_days(2026y / 2 / 1))),
              std::vector<std::string>{"2026-02-01"});
    EXPECT_EQ(texts(evaluator_.dayKeysInSameMonthAs(sys_days(2026y / 2 / 3))),
              (std::vector<std::string>{"2026-02-01", "2026-02-02", "2026-02-03"}));
    EXPECT_EQ(evaluator_.dayKeysInSameMonthAs(sys_days(2028y / 2 / last) + 23h).size(), 29u);
}

TEST_F(GoalEvaluatorTest, ForASundayTheFirstTheWeekSumsSixDaysOfTheFormerMonth) {
    for (auto day = sys_days(2026y / 1 / 20); day <= sys_days(2026y / 2 / 1); day += days(1)) {
        fixture_.setTime(day, 100);
    }
    const auto rows = evaluator_.evaluate(sys_days(2026y / 2 / 1) + 12h);
    EXPECT_EQ(rows[2].currentSeconds, Seconds(700));
    EXPECT_EQ(rows[3].currentSeconds, Seconds(100));
}

TEST_F(GoalEvaluatorTest, TheFutureOfAPeriodDoesNotCount) {
    fixture_.setTime(2026y / 1 / 15, 10);
    fixture_.setTime(2026y / 1 / 16, 1000);
    const auto rows = evaluator_.evaluate(world_.clock.now());
    EXPECT_EQ(rows[2].currentSeconds, Seconds(10));
    EXPECT_EQ(rows[3].currentSeconds, Seconds(10));
}

TEST_F(GoalEvaluatorTest, TargetsAreHoursInSecondsTruncated) {
    setGoals({.dailyHours = 7.5, .weeklyHours = 0.0001, .monthlyHours = -0.0005});
    fixture_.setTime(2026y / 1 / 15, 13500);
    const auto rows = evaluator_.evaluate();
    EXPECT_EQ(rows[0].targetSeconds, Seconds(27000));
    EXPECT_EQ(rows[0].fraction, 0.5);
    EXPECT_EQ(rows[2].targetSeconds, Seconds(0));
    EXPECT_EQ(rows[2].fraction, 0);
    EXPECT_EQ(rows[3].targetSeconds, Seconds(-1));
    EXPECT_EQ(rows[3].fraction, 0);
}

TEST_F(GoalEvaluatorTest, AnAbsurdTargetIsHarmless) {
    setGoals({.dailyHours = 1e300, .weeklyHours = -1e300});
    fixture_.setTime(2026y / 1 / 15, 3600);
    const auto rows = evaluator_.evaluate();
    EXPECT_GT(rows[0].targetSeconds, Seconds(1'000'000'000'000));
    EXPECT_LT(rows[0].fraction, 1e-9);
    EXPECT_EQ(rows[2].fraction, 0);
}

TEST_F(GoalEvaluatorTest, AProductivityGoalOfZeroIsNeverReached) {
    setGoals({.dailyProductivity = 0});
    fixture_.addClassified(2026y / 1 / 15, 40, 10);
    const auto row = evaluator_.evaluate()[1];
    EXPECT_EQ(row.currentScore, 0.8);
    EXPECT_EQ(row.targetScore, 0);
    EXPECT_EQ(row.fraction, 0);
}

TEST_F(GoalEvaluatorTest, AnEmptyRecordGivesFourRowsToo) {
    const auto rows = evaluator_.evaluate();
    EXPECT_EQ(rows[0], (GoalProgress{.label = "Hoy", .targetSeconds = Seconds(6 * 3600)}));
    EXPECT_EQ(rows[1],
              (GoalProgress{.label = "Productividad hoy", .isProductivity = true, .targetScore = 0.8}));
    EXPECT_EQ(rows[2], (GoalProgress{.label = "Semana", .targetSeconds = Seconds(35 * 3600)}));
    EXPECT_EQ(rows[3], (GoalProgress{.label = "Mes", .targetSeconds = Seconds(140 * 3600)}));
}

TEST_F(GoalEvaluatorTest, FractionsAreNotLimited) {
    setGoals({.dailyHours = 1, .dailyProductivity = 0.5, .weeklyHours = 2, .monthlyHours = 4});
    fixture_.setTime(2026y / 1 / 15, 5400);
    fixture_.setTime(2026y / 1 / 14, 5400);
    fixture_.setTime(2026y / 1 / 2, 3600);
    fixture_.addClassified(2026y / 1 / 15, 30, 10);
    const auto rows = evaluator_.evaluate();
    EXPECT_EQ(rows[0].fraction, 1.5);
    EXPECT_EQ(rows[1].fraction, 1.5);
    EXPECT_EQ(rows[2].fraction, 1.5);
    EXPECT_EQ(rows[3].fraction, 1.0);
}

TEST_F(GoalEvaluatorTest, ThreeFifthsOfTheDefaultGoalAreALastBitShortOfThreeQuarters) {
    fixture_.addClassified(2026y / 1 / 15, 60, 40);
    const auto row = evaluator_.evaluate()[1];
    EXPECT_EQ(row.currentScore, 0.6);
    EXPECT_EQ(row.fraction, 0.6 / 0.8);
    EXPECT_LT(row.fraction, 0.75);
}

TEST_F(GoalEvaluatorTest, TheScoreIsTakenAsItIsWithoutTheGatesOfItsDisplay) {
    fixture_.addClassified(2026y / 1 / 15, 3, 1);
    EXPECT_EQ(evaluator_.evaluate()[1].currentScore, 0.75);
}

TEST_F(GoalEvaluatorTest, ASumTakesAbsentDaysAsZero) {
    fixture_.setTime(2026y / 1 / 14, 5);
    const std::vector days{DayKey("2026-01-13"), DayKey("2026-01-14"), DayKey("no day")};
    EXPECT_EQ(evaluator_.sumSeconds(days), Seconds(5));
    EXPECT_EQ(evaluator_.sumSeconds({}), Seconds(0));
    EXPECT_EQ(fixture_.days.allDays().size(), 1u) << "asking made a day";
}

TEST_F(GoalEvaluatorTest, NewGoalsTakeEffectAtOnce) {
    fixture_.setTime(2026y / 1 / 15, 3600);
    setGoals({.dailyHours = 1});
    EXPECT_EQ(evaluator_.evaluate()[0].fraction, 1.0);
}

TEST_F(GoalEvaluatorTest, WeeksAndMonthsGoByTheZoneOfTheMoment) {
    // Half past midnight of Monday the 2nd of February in Madrid.
    const Instant instant = sys_days(2026y / 2 / 1) + 23h + 30min;
    EXPECT_EQ(texts(evaluator_.dayKeysInSameMonthAs(instant)), std::vector<std::string>{"2026-02-01"});
    world_.clock.setZone(platform::madridZone());
    EXPECT_EQ(texts(evaluator_.dayKeysInSameWeekAs(instant)), std::vector<std::string>{"2026-02-02"});
    EXPECT_EQ(evaluator_.dayKeysInSameMonthAs(instant).size(), 2u);
    world_.clock.setZone(platform::mexicoCityZone());
    EXPECT_EQ(evaluator_.dayKeysInSameWeekAs(instant).size(), 7u);
}

TEST_F(GoalEvaluatorTest, ANightThatChangesTheClockNeitherSkipsNorRepeatsADay) {
    world_.clock.setZone(platform::madridZone());
    // The clocks go forward on Sunday the 29th of March and back on Sunday the 25th of October.
    for (const auto sunday : {2026y / 3 / 29, 2026y / 10 / 25}) {
        for (int hour = 0; hour < 22; ++hour) {
            const auto week = evaluator_.dayKeysInSameWeekAs(sys_days(sunday) + hours(hour));
            ASSERT_EQ(week.size(), 7u);
            for (int day = 0; day < 7; ++day) {
                EXPECT_EQ(week[static_cast<std::size_t>(day)], toDayKey(sys_days(sunday) - days(6 - day)));
            }
        }
    }
    EXPECT_EQ(evaluator_.dayKeysInSameMonthAs(sys_days(2026y / 10 / 31) + 12h).size(), 31u);
}

TEST_F(GoalEvaluatorTest, TheDayIsTheLogicalOneAndThePeriodsAreThoseOfTheCalendar) {
    fixture_.settings.setDayStartHour(4);
    const Instant night = sys_days(2026y / 2 / 2) + 2h;  // a Monday
    fixture_.setTime(2026y / 2 / 1, 100);
    fixture_.setTime(2026y / 2 / 2, 7);
    fixture_.addClassified(2026y / 2 / 1, 3, 1);
    const auto rows = evaluator_.evaluate(night);
    EXPECT_EQ(rows[0].currentSeconds, Seconds(100));
    EXPECT_EQ(rows[1].currentScore, 0.75);
    EXPECT_EQ(rows[2].currentSeconds, Seconds(7));
    EXPECT_EQ(rows[3].currentSeconds, Seconds(107));
}

}  // namespace
}  // namespace tidewatch
