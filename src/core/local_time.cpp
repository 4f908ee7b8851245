#include "core/local_time.h"

#include <algorithm>

namespace tidewatch {
namespace {

constexpr std::chrono::days week(7);

}  // namespace

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

Instant InstantReader::instantOf(WallTime time) {
    const auto day = std::chrono::floor<std::chrono::days>(time);
    if (!week_ || day < *week_ || day >= *week_ + week) turnTo(day);
    return offset_ ? Instant(time.time_since_epoch() - *offset_) : tidewatch::instantOf(time, zone_);
}

void InstantReader::turnTo(std::chrono::local_days firstDay) {
    const Instant firstDayAsUtc(firstDay.time_since_epoch());
    const auto before = zone_.utcOffset(firstDayAsUtc - std::chrono::days(1));
    const auto after = zone_.utcOffset(firstDayAsUtc + week + std::chrono::days(1));
    week_ = firstDay;
    offset_ = before == after ? std::optional(before) : std::nullopt;
}

Instant plusDays(Instant instant, std::chrono::days count, const platform::TimeZone& zone) {
    return instantOf(wallTime(instant, zone) + count, zone);
}

}  // namespace tidewatch
