#pragma once

#include <optional>
#include <string_view>

#include "analysis/insights.h"
#include "core/usage_snapshot.h"
#include "platform/api/clock.h"

namespace tidewatch {

/// The run of busy buckets with the most seconds, on a tie the earliest; nullopt if no bucket is busy. A
/// bucket is busy if at least half of it is booked; a run consists of consecutive buckets, also across
/// midnight. Buckets of days before `cutoffKey` and malformed keys are ignored. Keys are interpreted in
/// `zone`.
[[nodiscard]] std::optional<LongestSession> longestSession(const UsageSnapshot& minutes,
                                                           std::string_view cutoffKey,
                                                           const platform::TimeZone& zone);

}  // namespace tidewatch
