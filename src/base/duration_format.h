#pragma once

#include <string>

#include "base/seconds.h"

namespace tidewatch {

/// "01:02:03". Hours are not wrapped: a hundred hours give "100:00:00".
[[nodiscard]] std::string hms(Seconds duration);

/// "59s" below a minute, "1m 0s" below an hour, "1h 30m" from there on.
[[nodiscard]] std::string formatShort(Seconds duration);

}  // namespace tidewatch
