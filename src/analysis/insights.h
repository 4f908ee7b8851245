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

/// The days that a look back takes in; all of them end today.
enum class InsightsRange { week, month, all };

[[nodiscard]] std::span<const InsightsRange> allInsightsRanges();
[[nodiscard]] std::string_view rawValue(InsightsRange range);
/// What the user sees.
[[nodiscard]] std::string_view label(InsightsRange range);
/// How many days it takes in; nothing for no limit.
[[nodiscard]] std::optional<int> days(InsightsRange range);

/// A run of busy ten-minute buckets without a gap.
struct LongestSession {
    Seconds seconds;  ///< what was booked in it, not the span from start to end
    Instant start;
    Instant end;
    bool operator==(const LongestSession&) const = default;
};

/// What a look back over a range of days finds.
struct Insights {
    InsightsRange range = InsightsRange::week;
    Seconds totalSeconds;
    int activeDays = 0;  ///< days with at least 60 seconds
    Seconds avgPerActiveDay;
    std::optional<DayKey> bestDayKey;  ///< the day with most seconds
    Seconds bestDaySeconds;
    std::optional<LongestSession> longest;
    std::optional<int> peakHour;  ///< 0 to 23, the hour of the day with most seconds
    Seconds peakHourSeconds;
    std::optional<double> avgPeakHour;  ///< mean of the days' own busiest hours
    std::array<Seconds, hoursPerDay> hourHistogram{};
    double bestScore = 0;  ///< a fraction from 0 to 1
    std::optional<DayKey> bestScoreDayKey;
    std::optional<DayKey> firstDayKey;  ///< the earliest day on record, whatever the range
    int rangeDays = 0;  ///< calendar days from the first to the last day with an entry, both included

    bool operator==(const Insights&) const = default;
};

}  // namespace tidewatch
