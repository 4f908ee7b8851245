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

/// What a bucket's key says of the time on the clock.
struct ClockMinute {
    int hour = 0;
    int minute = 0;
    bool operator==(const ClockMinute&) const = default;
};

/// Names hours and ten-minute buckets: the logical day that a moment belongs to, then the time that a clock
/// showed at that moment. With a day that starts at 5, half past two in the night of the 15th is hour 02 of
/// the 14th. Safe from any thread.
class ClockKeys final {
public:
    /// All three must outlive it.
    ClockKeys(const platform::Clock& clock, const Settings& settings, const DayRule& dayRule);

    [[nodiscard]] HourKey hourKey(Instant instant) const;
    [[nodiscard]] BucketKey bucketKey(Instant instant) const;

    /// The clock hours, 0 to 23, in the order in which a day passes them: from Settings::dayStartHour on.
    [[nodiscard]] std::array<int, hoursPerDay> hoursOfDay() const;

    /// The keys of a day in the order of hoursOfDay(). Which keys they are does not depend on the day's
    /// start.
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

/// The time in a bucket's key: what stands behind its last blank, two whole numbers with a colon between
/// them. Nothing if it has another form.
[[nodiscard]] std::optional<ClockMinute> components(const BucketKey& key);

}  // namespace tidewatch
