#pragma once

#include "analysis/goal_evaluator.h"
#include "analysis/goal_store.h"
#include "analysis/reward_engine.h"
#include "classification/productivity_score.h"
#include "core/daily_store.h"

namespace tidewatch {

/// The goals, how near they are, and the stars for them, built together. Main thread only.
struct GoalTracking final {
    /// All of it must outlive the bundle.
    struct Needs {
        const platform::Clock& clock;
        platform::FileSystem& files;
        platform::Log& log;
        const DailyStore& days;
        const ProductivityScorer& scorer;
    };

    explicit GoalTracking(const Needs& needs)
        : store(needs.files, needs.log),
          evaluator(needs.clock, store, needs.days, needs.scorer),
          rewards(needs.clock, store, needs.days, needs.scorer, evaluator) {}

    GoalStore store;
    GoalEvaluator evaluator;
    RewardEngine rewards;
};

}  // namespace tidewatch
