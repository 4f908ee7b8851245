#pragma once

#include <chrono>

#include "base/instant.h"
#include "platform/api/clock.h"

namespace tidewatch {

/// A date and a time of day as a clock on the wall shows them, proleptic Gregorian.
using WallTime = std::chrono::local_time<std::chrono::milliseconds>;

/// What a clock in `zone` shows at `instant`.
[[nodiscard]] WallTime wallTime(Instant instant, const platform::TimeZone& zone);

/// When a clock in `zone` shows `time`. Of a time that comes twice, the first; a time that the zone skips is
/// as much later as the zone skips.
[[nodiscard]] Instant instantOf(WallTime time, const platform::TimeZone& zone);

/// The same time on the clock `count` calendar days later, or earlier if it is below 0.
[[nodiscard]] Instant plusDays(Instant instant, std::chrono::days count, const platform::TimeZone& zone);

}  // namespace tidewatch
