#pragma once

#include <chrono>

#include "base/instant.h"
#include "base/named_string.h"

namespace tidewatch {

/// The calendar day that a clock shows at `instant`, at this offset from UTC. Days of the calendar begin at
/// midnight, whenever the user's day may start.
[[nodiscard]] std::chrono::sys_days calendarDay(Instant instant, std::chrono::seconds utcOffset);

/// The key of the logical day that begins on `day`.
[[nodiscard]] DayKey dayKeyOf(std::chrono::sys_days day);

}  // namespace tidewatch
