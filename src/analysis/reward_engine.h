#pragma once

#include "analysis/goal_evaluator.h"
#include "analysis/goal_store.h"
#include "base/tagged_string.h"
#include "classification/productivity_score.h"
#include "core/daily_store.h"
#include "platform/api/clock.h"

namespace tidewatch {

/// Gives each day stars for how far it reached the goals, and counts them. Nothing is stored: every figure
/// comes from the record, the goals and the classification as they stand, so that changing a goal changes
/// past days too. Main thread only.
class RewardEngine final {
public:
    /// All must outlive it.
    RewardEngine(const platform::Clock& clock, const GoalStore& goals, const DailyStore& daily,
                 const ProductivityScorer& scorer, const GoalEvaluator& evaluator);

    /// 0 to 5: up to three for the time and up to two for the productivity. A day with less than 30
    /// classified seconds gets none for its productivity; a goal that is not above 0 gives none.
    [[nodiscard]] int stars(const DayKey& day) const;

    /// Of the logical day of the moment.
    [[nodiscard]] int starsToday() const;

    /// Calendar days in a row, 0 to 400, with three stars or more: those that end today, or, as long as
    /// today has fewer, yesterday.
    [[nodiscard]] int currentStreak() const;

    /// The sum from the first of the month through today.
    [[nodiscard]] int starsThisMonth() const;

private:
    const platform::Clock& clock_;
    const GoalStore& goals_;
    const DailyStore& daily_;
    const ProductivityScorer& scorer_;
    const GoalEvaluator& evaluator_;
};

}  // namespace tidewatch
