#pragma once

#include <string>

#include "analysis/goal_evaluator.h"
#include "analysis/goal_store.h"
#include "analysis/reward_engine.h"
#include "base/calendar_day.h"
#include "classification/category_store.h"
#include "classification/productivity_score.h"
#include "core/app_usage_store.h"
#include "core/daily_store.h"
#include "core/day_rule.h"
#include "core/settings.h"
#include "tests/support/fake_world.h"

namespace tidewatch::test {

inline const std::string goalsJson = "/home/user/.tidewatch/goals.json";

/// Goals, rewards and what they depend on, in a fake world.
struct AnalysisFixture {
    explicit AnalysisFixture(FakeWorld& world)
        : settings(world.preferences),
          dayRule(world.clock, settings),
          daily(world.files, world.log, dayRule),
          apps(world.files, world.log, world.frontmost),
          categories(world.files, world.log, world.applications),
          scorer(apps, categories),
          goals(world.files, world.log),
          evaluator(world.clock, goals, daily, scorer),
          rewards(world.clock, goals, daily, scorer, evaluator) {}

    Settings settings;
    DayRule dayRule;
    DailyStore daily;
    AppUsageStore apps;
    CategoryStore categories;
    ProductivityScorer scorer;
    GoalStore goals;
    GoalEvaluator evaluator;
    RewardEngine rewards;

    void setTime(const DayKey& day, int seconds) { daily.set(Seconds(seconds), day); }
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
