#pragma once

#include <vector>

#include "base/seconds.h"
#include "base/tagged_string.h"
#include "classification/category_store.h"
#include "core/clock_keys.h"
#include "core/hourly_store.h"

namespace tidewatch {

/// One clock hour of a day.
struct HourSummary {
    HourKey id;
    int hour = 0;     ///< 0 to 23
    Seconds seconds;  ///< all of the hour, uncategorized ones included
    Seconds productive;
    Seconds neutral;
    Seconds distracting;

    bool operator==(const HourSummary&) const = default;

    /// The productive share of productive plus distracting seconds, 0 to 1; 0 if there are none.
    [[nodiscard]] double score() const;

    /// Whether there are too few productive and distracting seconds (less than 30) for a meaningful score.
    [[nodiscard]] bool isSparse() const;
};

/// The 24 hours of `day` in the order of the day, empty ones included. Main thread only.
[[nodiscard]] std::vector<HourSummary> dayHourSummaries(const HourlyStore& hours,
                                                        const CategoryStore& categories,
                                                        const ClockKeys& keys, const DayKey& day);

}  // namespace tidewatch
