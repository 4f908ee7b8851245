#pragma once

#include "analysis/goal_evaluator.h"
#include "analysis/goal_store.h"
#include "base/tagged_string.h"
#include "classification/productivity_score.h"
#include "core/daily_store.h"
#include "platform/api/clock.h"

namespace tidewatch {

/// Awards each day stars for its progress towards the goals, and counts them. Nothing is stored: every figure
/// is computed from the record and the current goals and classification, so that changing a goal changes past
/// days too. Main thread only.
class RewardEngine final {
public:
    /// All must outlive it.
    RewardEngine(const platform::Clock& clock, const GoalStore& goals, const DailyStore& daily,
                 const ProductivityScorer& scorer, const GoalEvaluator& evaluator);

    /// 0 to 5: up to three for time and up to two for productivity. A day with less than 30 classified
    /// seconds gets none for productivity; a goal that is not above 0 gives none.
    [[nodiscard]] int stars(const DayKey& day) const;

    /// Of the current logical day.
    [[nodiscard]] int starsToday() const;

    /// The number of consecutive calendar days, 0 to 400, with at least three stars, ending today or, while
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
