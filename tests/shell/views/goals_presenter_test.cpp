// The goals.

#include <gtest/gtest.h>

#include <string>

#include "shell/views/stats_presenter_fixture.h"

namespace tidewatch {
namespace {

TEST_F(StatsPresenterTest, EachStepIsWithinItsRangeAndSavedAtOnce) {
    showTab(goalsTab);
    dashboard_.goals()->increase("dailyHours");
    EXPECT_DOUBLE_EQ(services_.goals.store.settings().dailyHours, 6.5);
    EXPECT_TRUE(machine_.files.readFile(services_.goals.store.filePath()).ok());
    for (int step = 0; step < 40; ++step) dashboard_.goals()->increase("dailyHours");
    EXPECT_DOUBLE_EQ(services_.goals.store.settings().dailyHours, 16);
    for (int step = 0; step < 40; ++step) dashboard_.goals()->decrease("dailyHours");
    EXPECT_DOUBLE_EQ(services_.goals.store.settings().dailyHours, 1);
}

struct StepRange {
    const char* id;
    double GoalSettings::*goal;
    double min;
    double max;
    double step;
};

TEST_F(StatsPresenterTest, TheRangesAndStepsOfAllGoals) {
    showTab(goalsTab);
    for (const auto& range : {StepRange{"dailyHours", &GoalSettings::dailyHours, 1, 16, 0.5},
                              StepRange{"dailyProductivity", &GoalSettings::dailyProductivity, 0.3, 1, 0.05},
                              StepRange{"weeklyHours", &GoalSettings::weeklyHours, 5, 80, 1},
                              StepRange{"monthlyHours", &GoalSettings::monthlyHours, 20, 320, 5}}) {
        SCOPED_TRACE(range.id);
        const double before = services_.goals.store.settings().*range.goal;
        dashboard_.goals()->decrease(range.id);
        EXPECT_DOUBLE_EQ(services_.goals.store.settings().*range.goal, before - range.step);
        for (int step = 0; step < 100; ++step) dashboard_.goals()->increase(range.id);
        EXPECT_DOUBLE_EQ(services_.goals.store.settings().*range.goal, range.max);
        for (int step = 0; step < 100; ++step) dashboard_.goals()->decrease(range.id);
        EXPECT_DOUBLE_EQ(services_.goals.store.settings().*range.goal, range.min);
    }
}

TEST_F(StatsPresenterTest, TheSwitchOfTheNotificationsIsSavedAtOnce) {
    showTab(goalsTab);
    dashboard_.goals()->setNotificationsEnabled(false);
    EXPECT_FALSE(services_.goals.store.settings().notificationsEnabled);
    EXPECT_NE(machine_.files.readFile(services_.goals.store.filePath()).value().find("false"),
              std::string::npos);
}

TEST_F(StatsPresenterTest, TheReportIsAskedForByItsButton) {
    dashboard_.goals()->exportReport();
    EXPECT_EQ(reportsAsked_, 1);
}

}  // namespace
}  // namespace tidewatch
