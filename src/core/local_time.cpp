#include "core/local_time.h"

#include <algorithm>

namespace tidewatch {

WallTime wallTime(Instant instant, const platform::TimeZone& zone) {
    return WallTime((instant + zone.utcOffset(instant)).time_since_epoch());
}

Instant instantOf(WallTime time, const platform::TimeZone& zone) {
    // Offsets lie within a day of UTC, so these two are the ones before and after a change that is near.
    const Instant asUtc(time.time_since_epoch());
    const auto before = asUtc - zone.utcOffset(asUtc - std::chrono::days(1));
    const auto after = asUtc - zone.utcOffset(asUtc + std::chrono::days(1));
    const bool beforeShowsIt = wallTime(before, zone) == time;
    const bool afterShowsIt = wallTime(after, zone) == time;
    if (beforeShowsIt && afterShowsIt) return std::min(before, after);
    if (beforeShowsIt) return before;
    return afterShowsIt ? after : std::max(before, after);
}

Instant plusDays(Instant instant, std::chrono::days count, const platform::TimeZone& zone) {
    return instantOf(wallTime(instant, zone) + count, zone);
}

}  // namespace tidewatch
