#pragma once

#include <chrono>

namespace tidewatch {

/// A point in wall-clock time, UTC. The current one comes from platform::Clock only.
using Instant = std::chrono::sys_time<std::chrono::milliseconds>;

/// Local date and time: an instant at an offset from UTC, in the proleptic Gregorian calendar.
struct CivilTime {
    std::chrono::year_month_day date;
    int hour = 0;    ///< 0 to 23
    int minute = 0;  ///< 0 to 59
    int second = 0;  ///< 0 to 59
};

/// Pure arithmetic, without time-zone data.
[[nodiscard]] CivilTime civilTime(Instant instant, std::chrono::seconds utcOffset);

}  // namespace tidewatch
