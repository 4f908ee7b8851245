#pragma once

#include <chrono>

namespace tidewatch {

/// A point of wall-clock time, UTC. Only platform::Clock gives the present one.
using Instant = std::chrono::sys_time<std::chrono::milliseconds>;

/// What a clock on the wall shows: an instant seen at an offset from UTC, proleptic Gregorian.
struct CivilTime {
    std::chrono::year_month_day date;
    int hour = 0;    ///< 0 to 23
    int minute = 0;  ///< 0 to 59
    int second = 0;  ///< 0 to 59
};

/// Pure arithmetic; no time-zone data is consulted.
[[nodiscard]] CivilTime civilTime(Instant instant, std::chrono::seconds utcOffset);

}  // namespace tidewatch
