#pragma once

#include <chrono>
#include <optional>
#include <string_view>

namespace tidewatch {

/// Parses the first 19 characters of a log line's stamp, "2026-03-01T10:15:30" or with a space for the T, as
/// UTC: fractions of a second and the zone after them are dropped, not applied. Returns nullopt for any other
/// form, and for a date or time of day that does not exist.
[[nodiscard]] std::optional<std::chrono::sys_seconds> parseLogStamp(std::string_view stamp);

}  // namespace tidewatch
