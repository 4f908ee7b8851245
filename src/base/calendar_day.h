#pragma once

#include <chrono>
#include <optional>
#include <string_view>

#include "base/instant.h"
#include "base/tagged_string.h"

namespace tidewatch {

/// The calendar day that a clock shows at `instant`, at this offset from UTC. Days of the calendar begin at
/// midnight, whenever the user's day may start.
[[nodiscard]] std::chrono::sys_days calendarDay(Instant instant, std::chrono::seconds utcOffset);

/// The key of the logical day that begins on `day`.
[[nodiscard]] DayKey toDayKey(std::chrono::sys_days day);

/// The day that a key names; nothing if `text` is not four, two and two digits with hyphens between them, or
/// no day of the calendar.
[[nodiscard]] std::optional<std::chrono::sys_days> parseDayKey(std::string_view text);

}  // namespace tidewatch
