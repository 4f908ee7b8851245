#include "analysis/goal_evaluator.h"

#include <algorithm>

#include "base/calendar_day.h"

namespace tidewatch {
namespace {

using namespace std::chrono;

// Truncated toward zero. Absurd values from an edited file are clamped.
Seconds secondsOf(double hours) {
    constexpr double limit = 0x1p62;
    return Seconds(static_cast<std::int64_t>(std::clamp(hours * 3600.0, -limit, limit)));
}

GoalProgress timeRow(std::string_view label, Seconds current, double targetHours) {
    const auto target = secondsOf(targetHours);
    const auto fraction =
        target > Seconds() ? static_cast<double>(current.count()) / static_cast<double>(target.count()) : 0.0;
    return {.label = label, .currentSeconds = current, .targetSeconds = target, .fraction = fraction};
}

GoalProgress productivityRow(double score, double target) {
    return {.label = "Productividad hoy",
            .fraction = target > 0 ? score / target : 0.0,
            .isProductivity = true,
            .currentScore = score,
            .targetScore = target};
}

std::vector<DayKey> keysFromThrough(sys_days first, sys_days last) {
    std::vector<DayKey> keys;
    for (auto day = first; day <= last; day += days(1)) keys.push_back(toDayKey(day));
    return keys;
}

}  // namespace

GoalEvaluator::GoalEvaluator(const platform::Clock& clock, const GoalStore& goals, const DailyStore& daily,
                             const ProductivityScorer& scorer)
    : clock_(clock), goals_(goals), daily_(daily), scorer_(scorer) {}

std::array<GoalProgress, 4> GoalEvaluator::evaluate(Instant instant) const {
    const auto& goals = goals_.settings();
    const auto today = daily_.dayKey(instant);
    const auto score = scorer_.compute({&today, 1}).score();
    const auto week = sumSeconds(dayKeysInSameWeekAs(instant));
    const auto month = sumSeconds(dayKeysInSameMonthAs(instant));
    return {
        timeRow("Hoy", daily_.seconds(today), goals.dailyHours),
        productivityRow(score, goals.dailyProductivity),
        timeRow("Semana", week, goals.weeklyHours),
        timeRow("Mes", month, goals.monthlyHours),
    };
}

std::vector<DayKey> GoalEvaluator::dayKeysInSameWeekAs(Instant instant) const {
    const auto day = calendarDayOf(instant);
    return keysFromThrough(day - (weekday(day) - Monday), day);
}

std::vector<DayKey> GoalEvaluator::dayKeysInSameMonthAs(Instant instant) const {
    const auto day = calendarDayOf(instant);
    const year_month_day date(day);
    return keysFromThrough(sys_days(date.year() / date.month() / 1), day);
}

Seconds GoalEvaluator::sumSeconds(std::span<const DayKey> days) const {
    Seconds sum;
    for (const auto& day : days) sum += daily_.seconds(day);
    return sum;
}

sys_days GoalEvaluator::calendarDayOf(Instant instant) const {
    return calendarDay(instant, clock_.timeZone()->utcOffset(instant));
}

}  // namespace tidewatch
