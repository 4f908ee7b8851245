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

/// The progress towards one goal: of time, with both scores 0, or of productivity, with both durations 0.
struct GoalProgress {
    std::string_view label;  ///< display text
    Seconds currentSeconds{};
    Seconds targetSeconds{};
    double fraction = 0;  ///< of the target; above 1 if exceeded, 0 if the target is not above 0
    bool isProductivity = false;
    double currentScore = 0;  ///< a fraction from 0 to 1
    double targetScore = 0;   ///< a fraction from 0 to 1

    bool operator==(const GoalProgress&) const = default;
};

/// Compares the record with the current goals. Main thread only.
///
/// Weeks and months are calendar ones in the current time zone, and each of their days counts what is booked
/// under its date; today is the logical day, which may start later than midnight.
class GoalEvaluator final {
public:
    /// All four must outlive it.
    GoalEvaluator(const platform::Clock& clock, const GoalStore& goals, const DailyStore& daily,
                  const ProductivityScorer& scorer);

    /// Today, today's productivity, the week and the month, in this order.
    [[nodiscard]] std::array<GoalProgress, 4> evaluate(Instant instant) const;
    [[nodiscard]] std::array<GoalProgress, 4> evaluate() const { return evaluate(clock_.now()); }

    /// From Monday, or the first of the month, through the day of `instant`, in ascending order.
    [[nodiscard]] std::vector<DayKey> dayKeysInSameWeekAs(Instant instant) const;
    [[nodiscard]] std::vector<DayKey> dayKeysInSameMonthAs(Instant instant) const;

    /// The sum over `days`; a day without an entry counts 0, one given twice counts twice.
    [[nodiscard]] Seconds sumSeconds(std::span<const DayKey> days) const;

private:
    [[nodiscard]] std::chrono::sys_days calendarDayOf(Instant instant) const;

    const platform::Clock& clock_;
    const GoalStore& goals_;
    const DailyStore& daily_;
    const ProductivityScorer& scorer_;
};

}  // namespace tidewatch
