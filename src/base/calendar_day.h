#pragma once

#include <chrono>
#include <optional>
#include <string_view>

#include "base/instant.h"
#include "base/tagged_string.h"

namespace tidewatch {

/// The calendar day that a clock shows at `instant`, at this offset from UTC. Calendar days start at
/// midnight, whatever hour the user's day starts at.
[[nodiscard]] std::chrono::sys_days calendarDay(Instant instant, std::chrono::seconds utcOffset);

/// The key of the logical day that begins on `day`.
[[nodiscard]] DayKey toDayKey(std::chrono::sys_days day);

/// Parses "yyyy-MM-dd". Returns nullopt for any other form, and for a date that does not exist.
[[nodiscard]] std::optional<std::chrono::sys_days> parseDayKey(std::string_view text);

}  // namespace tidewatch
