#include "analysis/insights_engine.h"

#include "analysis/hour_insights.h"
#include "analysis/longest_session.h"
#include "analysis/spanish_dates.h"
#include "base/calendar_day.h"
#include "core/clock_keys.h"
#include "core/local_time.h"

namespace tidewatch {
namespace {

constexpr Seconds minActive(60);

// Days from the first to the last, both included; 0 if one of them is no date.
int daysFromThrough(const DayKey& first, const DayKey& last) {
    const auto firstDay = parseDayKey(first.text());
    const auto lastDay = parseDayKey(last.text());
    return firstDay && lastDay ? static_cast<int>((*lastDay - *firstDay).count()) + 1 : 0;
}

void addDayInsights(const std::vector<DaySeconds>& days, std::string_view cutoffKey, Insights& insights) {
    const DayKey* firstOfRange = nullptr;
    for (const auto& [day, seconds] : days) {
        if (day.text() < cutoffKey) continue;
        if (!firstOfRange) firstOfRange = &day;
        insights.totalSeconds += seconds;
        if (seconds >= minActive) ++insights.activeDays;
        if (seconds > insights.bestDaySeconds) {
            insights.bestDaySeconds = seconds;
            insights.bestDayKey = day;
        }
    }
    if (insights.activeDays > 0) {
        insights.avgPerActiveDay = Seconds(insights.totalSeconds.count() / insights.activeDays);
    }
    if (!days.empty()) insights.firstDayKey = days.front().day;
    if (firstOfRange) insights.rangeDays = daysFromThrough(*firstOfRange, days.back().day);
}

}  // namespace

InsightsEngine::InsightsEngine(const platform::Clock& clock, const DailyStore& days, const HourlyStore& hours,
                               const MinuteStore& minutes, const CategoryStore& categories)
    : clock_(clock),
      namingZone_(clock.timeZone()),
      days_(days),
      hours_(hours),
      minutes_(minutes),
      categories_(categories) {}

Insights InsightsEngine::compute(InsightsRange range, Instant now) const {
    const auto cutoff = cutoffKey(range, now);
    Insights insights;
    insights.range = range;
    addDayInsights(days_.allDays(), cutoff, insights);
    addHourInsights(hours_.snapshot(), cutoff, categories_, insights);
    insights.longest = longestSession(minutes_.snapshot(), cutoff, *namingZone_);
    return insights;
}

std::string InsightsEngine::cutoffKey(InsightsRange range, Instant now) const {
    const auto count = days(range);
    if (!count) return {};
    const auto first = plusDays(now, std::chrono::days(1 - *count), *clock_.timeZone());
    return toDayKey(calendarDay(first, namingZone_->utcOffset(first))).text();
}

std::string InsightsEngine::shortDate(const DayKey& day) const {
    const auto date = parseDayKey(day.text());
    return date ? spanish::weekdayAndDay(*date) : day.text();
}

std::string InsightsEngine::shortDate(Instant instant) const {
    return spanish::weekdayAndDay(calendarDay(instant, clock_.timeZone()->utcOffset(instant)));
}

std::string InsightsEngine::clockTime(Instant instant) const {
    const auto time = civilTime(instant, clock_.timeZone()->utcOffset(instant));
    return spanish::timeOfDay(time.hour, time.minute);
}

std::string InsightsEngine::hourLabel(int hour) {
    return spanish::hourOfDay((hour % hoursPerDay + hoursPerDay) % hoursPerDay);
}

}  // namespace tidewatch
