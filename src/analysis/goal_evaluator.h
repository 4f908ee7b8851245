#pragma once

#include <array>
#include <span>
#include <string_view>
#include <vector>

#include "analysis/goal_store.h"
#include "base/instant.h"
#include "base/seconds.h"
#include "base/tagged_string.h"
#include "classification/productivity_score.h"
#include "core/daily_store.h"
#include "platform/api/clock.h"

namespace tidewatch {

/// How far one goal is reached: either of time, and then both scores are 0, or of productivity, and then both
/// durations are.
struct GoalProgress {
    std::string_view label;  ///< what the user reads
    Seconds currentSeconds{};
    Seconds targetSeconds{};
    double fraction = 0;  ///< of the target; above 1 if it is exceeded, 0 if it is not above 0
    bool isProductivity = false;
    double currentScore = 0;  ///< a fraction from 0 to 1
    double targetScore = 0;   ///< a fraction from 0 to 1

    bool operator==(const GoalProgress&) const = default;
};

/// Compares the record with the present goals. Main thread only.
///
/// Weeks and months are those of the calendar in the zone of the moment, and a day of theirs counts what is
/// booked under its date; the day itself is the logical one, which may start later than midnight.
class GoalEvaluator final {
public:
    /// All four must outlive it.
    GoalEvaluator(const platform::Clock& clock, const GoalStore& goals, const DailyStore& daily,
                  const ProductivityScorer& scorer);

    /// Today, today's productivity, the week and the month, in this order.
    [[nodiscard]] std::array<GoalProgress, 4> evaluate(Instant instant) const;
    [[nodiscard]] std::array<GoalProgress, 4> evaluate() const { return evaluate(clock_.now()); }

    /// From the Monday, or the first of the month, through the day of `instant`, in ascending order.
    [[nodiscard]] std::vector<DayKey> dayKeysInSameWeekAs(Instant instant) const;
    [[nodiscard]] std::vector<DayKey> dayKeysInSameMonthAs(Instant instant) const;

    /// What the days hold together; a day without an entry counts 0, one given twice counts twice.
    [[nodiscard]] Seconds sumSeconds(std::span<const DayKey> days) const;

private:
    [[nodiscard]] std::chrono::sys_days calendarDayOf(Instant instant) const;

    const platform::Clock& clock_;
    const GoalStore& goals_;
    const DailyStore& daily_;
    const ProductivityScorer& scorer_;
};

}  // namespace tidewatch
