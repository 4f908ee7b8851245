#include "analysis/reward_engine.h"

#include <algorithm>
#include <cmath>

#include "base/calendar_day.h"

namespace tidewatch {
namespace {

constexpr double starsForTime = 3.0;
constexpr double starsForProductivity = 2.0;
constexpr double maxStars = 5.0;
constexpr int starsOfAGoodDay = 3;
constexpr int maxStreak = 400;
constexpr Seconds minClassifiedForStar(30);

// Halves away from zero. Below 0 for time below 0, which only an edited file can hold.
double starsFor(double reached, double target, double max) {
    return target > 0 ? std::round(std::min(1.0, reached / target) * max) : 0.0;
}

}  // namespace

RewardEngine::RewardEngine(const platform::Clock& clock, const GoalStore& goals, const DailyStore& daily,
                           const ProductivityScorer& scorer, const GoalEvaluator& evaluator)
    : clock_(clock), goals_(goals), daily_(daily), scorer_(scorer), evaluator_(evaluator) {}

int RewardEngine::stars(const DayKey& day) const {
    const auto& goals = goals_.settings();
    const auto seconds = static_cast<double>(daily_.seconds(day).count());
    const auto score = scorer_.compute({&day, 1});
    double stars = starsFor(seconds, goals.dailyHours * 3600.0, starsForTime);
    if (score.classified() >= minClassifiedForStar) {
        stars += starsFor(score.score(), goals.dailyProductivity, starsForProductivity);
    }
    return static_cast<int>(std::clamp(stars, 0.0, maxStars));
}

int RewardEngine::starsToday() const {
    return stars(daily_.today());
}

int RewardEngine::currentStreak() const {
    const auto isGood = [this](std::chrono::sys_days day) { return stars(toDayKey(day)) >= starsOfAGoodDay; };
    const auto now = clock_.now();
    auto day = calendarDay(now, clock_.timeZone()->utcOffset(now));
    // Today does not break a streak yet.
    if (!isGood(day)) day -= std::chrono::days(1);
    int streak = 0;
    while (streak < maxStreak && isGood(day)) {
        ++streak;
        day -= std::chrono::days(1);
    }
    return streak;
}

int RewardEngine::starsThisMonth() const {
    int sum = 0;
    for (const auto& day : evaluator_.dayKeysInSameMonthAs(clock_.now())) sum += stars(day);
    return sum;
}

}  // namespace tidewatch
