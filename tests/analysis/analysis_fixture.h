#pragma once

#include <string>

#include "analysis/goal_tracking.h"
#include "base/calendar_day.h"
#include "classification/classification.h"
#include "tests/support/core_fixture.h"
#include "tests/support/fake_world.h"

namespace tidewatch::test {

inline const std::string goalsJson = "/home/user/.tidewatch/goals.json";

/// Goals, rewards and what they depend on, in a fake world.
struct AnalysisFixture : Counting, Classification {
    explicit AnalysisFixture(FakeWorld& world)
        : Counting(countingDependencies(world)),
          Classification(
              {.files = world.files, .log = world.log, .applications = world.applications, .apps = apps}),
          goals({.clock = world.clock,
                 .files = world.files,
                 .log = world.log,
                 .days = days,
                 .scorer = scorer}) {}

    GoalTracking goals;

    void setTime(const DayKey& day, int seconds) { days.set(Seconds(seconds), day); }
    void setTime(std::chrono::year_month_day day, int seconds) { setTime(toDayKey(day), seconds); }

    /// Books seconds to applications of these tiers.
    void addClassified(const DayKey& day, int productive, int distracting) {
        for (int i = 0; i < productive; ++i) apps.incrementApp(AppId("com.apple.dt.Xcode"), day);
        for (int i = 0; i < distracting; ++i) apps.incrementApp(AppId("com.netflix.Netflix"), day);
    }
    void addClassified(std::chrono::year_month_day day, int productive, int distracting) {
        addClassified(toDayKey(day), productive, distracting);
    }
    void addNeutral(const DayKey& day, int seconds) {
        for (int i = 0; i < seconds; ++i) apps.incrementApp(AppId("com.spotify.client"), day);
    }
};

}  // namespace tidewatch::test
