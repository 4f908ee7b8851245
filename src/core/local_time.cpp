#include "core/local_time.h"

#include <algorithm>

namespace tidewatch {
namespace {

// Some zones change their offset for the month of Ramadan; none returns to an offset sooner.
constexpr std::chrono::days stretch(14);

}  // namespace

LocalTime localTime(Instant instant, const platform::TimeZone& zone) {
    return LocalTime((instant + zone.utcOffset(instant)).time_since_epoch());
}

Instant instantOf(LocalTime time, const platform::TimeZone& zone) {
    // Offsets are within a day of UTC, so these two are the ones before and after a nearby transition.
    const Instant asUtc(time.time_since_epoch());
    const auto before = asUtc - zone.utcOffset(asUtc - std::chrono::days(1));
    const auto after = asUtc - zone.utcOffset(asUtc + std::chrono::days(1));
    const bool beforeShowsIt = localTime(before, zone) == time;
    const bool afterShowsIt = localTime(after, zone) == time;
    if (beforeShowsIt && afterShowsIt) return std::min(before, after);
    if (beforeShowsIt) return before;
    return afterShowsIt ? after : std::max(before, after);
}

std::optional<std::chrono::seconds> DayOffsets::allDay(std::chrono::local_days day) {
    if (!stretchStart_ || day < *stretchStart_ || day >= *stretchStart_ + stretch) {
        stretchStart_ = day;
        offset_ = steadyOffset(day, stretch);
    }
    return offset_ ? offset_ : steadyOffset(day, std::chrono::days(1));
}

std::optional<std::chrono::seconds> DayOffsets::steadyOffset(std::chrono::local_days first,
                                                             std::chrono::days count) const {
    const Instant asUtc(first.time_since_epoch());
    const auto before = zone_.utcOffset(asUtc - std::chrono::days(1));
    const auto after = zone_.utcOffset(asUtc + count + std::chrono::days(1));
    return before == after ? std::optional(before) : std::nullopt;
}

Instant plusDays(Instant instant, std::chrono::days count, const platform::TimeZone& zone) {
    return instantOf(localTime(instant, zone) + count, zone);
}

}  // namespace tidewatch
