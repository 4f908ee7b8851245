#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "base/instant.h"
#include "base/seconds.h"
#include "base/tagged_string.h"
#include "core/clock_keys.h"

namespace tidewatch {

/// The period of the insights; all of them end today.
enum class InsightsRange { week, month, all };

[[nodiscard]] std::span<const InsightsRange> allInsightsRanges();
[[nodiscard]] std::string_view rawValue(InsightsRange range);
/// Its display name.
[[nodiscard]] std::string_view label(InsightsRange range);
/// Its number of days; nullopt if unlimited.
[[nodiscard]] std::optional<int> days(InsightsRange range);

/// A run of consecutive busy ten-minute buckets.
struct LongestSession {
    Seconds seconds;  ///< what was booked in it, not the span from start to end
    Instant start;
    Instant end;
    bool operator==(const LongestSession&) const = default;
};

/// Statistics over a range of days.
struct Insights {
    InsightsRange range = InsightsRange::week;
    Seconds totalSeconds;
    int activeDays = 0;  ///< days with at least 60 seconds
    Seconds avgPerActiveDay;
    std::optional<DayKey> bestDayKey;  ///< the day with the most seconds
    Seconds bestDaySeconds;
    std::optional<LongestSession> longest;
    std::optional<int> peakHour;  ///< 0 to 23, the hour of the day with the most seconds
    Seconds peakHourSeconds;
    std::optional<double> avgPeakHour;  ///< mean of each day's busiest hour
    std::array<Seconds, hoursPerDay> hourHistogram{};
    double bestScore = 0;  ///< a fraction from 0 to 1
    std::optional<DayKey> bestScoreDayKey;
    std::optional<DayKey> firstDayKey;  ///< the earliest day on record, whatever the range
    int rangeDays = 0;  ///< calendar days from the first to the last day with an entry, both included

    bool operator==(const Insights&) const = default;
};

}  // namespace tidewatch
