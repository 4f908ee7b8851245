#include "core/day_rule.h"

#include <fmt/format.h>

namespace tidewatch {
namespace {

// The same local time one calendar day earlier. The zone's offset may differ between the two; a skipped local
// time is shifted forward by the gap.
Instant oneDayEarlier(Instant instant, const platform::TimeZone& zone) {
    const auto earlier = instant - std::chrono::days(1);
    return earlier + (zone.utcOffset(instant) - zone.utcOffset(earlier));
}

DayKey dateOf(Instant instant, const platform::TimeZone& zone) {
    const auto date = civilTime(instant, zone.utcOffset(instant)).date;
    return DayKey(fmt::format("{:04}-{:02}-{:02}", static_cast<int>(date.year()),
                              static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day())));
}

}  // namespace

DayRule::DayRule(const platform::Clock& clock, const Settings& settings)
    : clock_(clock), settings_(settings), namingZone_(clock.timeZone()) {}

DayKey DayRule::dayKey(Instant instant) const {
    const int startHour = settings_.dayStartHour();
    if (startHour >= 1) {
        const auto zone = clock_.timeZone();
        if (civilTime(instant, zone->utcOffset(instant)).hour < startHour) {
            return dateOf(oneDayEarlier(instant, *zone), *namingZone_);
        }
    }
    return dateOf(instant, *namingZone_);
}

}  // namespace tidewatch
