#pragma once

#include <string>

#include "base/seconds.h"

namespace tidewatch {

/// "01:02:03". Hours are not wrapped: a hundred hours give "100:00:00".
[[nodiscard]] std::string hms(Seconds duration);

/// "59s" below a minute, "1m 0s" below an hour, "1h 30m" from there on.
[[nodiscard]] std::string formatShort(Seconds duration);

/// "45m" below an hour, "2h 5m" from there on. Seconds are truncated: less than a minute is "0m".
[[nodiscard]] std::string hm(Seconds duration);

/// "59s" below a minute, from there on as hm().
[[nodiscard]] std::string formatHM(Seconds duration);

/// "0m 59s" below an hour, "2h 03m" from there on.
[[nodiscard]] std::string formatPadded(Seconds duration);

/// "45s" below a minute, from there on as formatPadded().
[[nodiscard]] std::string compact(Seconds duration);

}  // namespace tidewatch
