#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "base/instant.h"
#include "base/seconds.h"
#include "base/tagged_string.h"
#include "core/day_rule.h"
#include "core/settings.h"
#include "platform/api/clock.h"

namespace tidewatch {

inline constexpr int hoursPerDay = 24;
inline constexpr int minutesPerBucket = 10;
inline constexpr int bucketsPerHour = 60 / minutesPerBucket;
inline constexpr Seconds bucketSize(60 * minutesPerBucket);

/// The time of day in a bucket's key.
struct ClockMinute {
    int hour = 0;
    int minute = 0;
    bool operator==(const ClockMinute&) const = default;
};

/// Builds the keys of hours and ten-minute buckets: the logical day of an instant, then its local time. With
/// a day that starts at 5, 02:30 on the 15th is hour 02 of the 14th. Thread-safe.
class ClockKeys final {
public:
    /// All three must outlive it.
    ClockKeys(const platform::Clock& clock, const Settings& settings, const DayRule& dayRule);

    [[nodiscard]] HourKey hourKey(Instant instant) const;
    [[nodiscard]] BucketKey bucketKey(Instant instant) const;

    /// The clock hours, 0 to 23, in the order of a logical day: starting at Settings::dayStartHour.
    [[nodiscard]] std::array<int, hoursPerDay> hoursOfDay() const;

    /// The keys of a day in the order of hoursOfDay(). The set of keys does not depend on the day's start.
    [[nodiscard]] std::array<HourKey, hoursPerDay> hourKeys(const DayKey& day) const;
    [[nodiscard]] std::array<BucketKey, hoursPerDay * bucketsPerHour> bucketKeys(const DayKey& day) const;

private:
    [[nodiscard]] CivilTime timeOnClock(Instant instant) const;

    const platform::Clock& clock_;
    const Settings& settings_;
    const DayRule& dayRule_;
};

[[nodiscard]] HourKey hourKey(const DayKey& day, int hour);
[[nodiscard]] BucketKey bucketKey(const DayKey& day, ClockMinute time);

/// Parses the time in a bucket's key: two integers separated by a colon after its last space. Returns nullopt
/// for any other form.
[[nodiscard]] std::optional<ClockMinute> components(const BucketKey& key);

}  // namespace tidewatch
