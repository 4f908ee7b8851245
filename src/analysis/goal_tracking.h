#pragma once

#include "analysis/goal_evaluator.h"
#include "analysis/goal_store.h"
#include "analysis/reward_engine.h"
#include "classification/productivity_score.h"
#include "core/daily_store.h"

namespace tidewatch {

/// The goals, their progress and the stars for them, built together. Main thread only.
struct GoalTracking final {
    /// All of it must outlive the bundle.
    struct Dependencies {
        const platform::Clock& clock;
        platform::FileSystem& files;
        platform::Log& log;
        const DailyStore& days;
        const ProductivityScorer& scorer;
    };

    explicit GoalTracking(const Dependencies& dependencies)
        : store(dependencies.files, dependencies.log),
          evaluator(dependencies.clock, store, dependencies.days, dependencies.scorer),
          rewards(dependencies.clock, store, dependencies.days, dependencies.scorer, evaluator) {}

    GoalStore store;
    GoalEvaluator evaluator;
    RewardEngine rewards;
};

}  // namespace tidewatch
