#pragma once

#include <optional>
#include <string_view>

#include "analysis/insights.h"
#include "core/usage_snapshot.h"
#include "platform/api/clock.h"

namespace tidewatch {

/// The run of busy buckets with most seconds, the earliest of equal ones; nothing if no bucket is busy. Busy
/// is one of which at least half is booked; a run is of buckets that follow each other directly, over
/// midnight too. Buckets of days before `cutoffKey` are left out, and those whose key is no date and time.
/// Keys are read in `zone`.
[[nodiscard]] std::optional<LongestSession> longestSession(const UsageSnapshot& minutes,
                                                           std::string_view cutoffKey,
                                                           const platform::TimeZone& zone);

}  // namespace tidewatch
