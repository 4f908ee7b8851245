#pragma once

#include <chrono>
#include <optional>

#include "base/instant.h"
#include "platform/api/clock.h"

namespace tidewatch {

/// A date and a time of day as a clock on the wall shows them, proleptic Gregorian.
using LocalTime = std::chrono::local_time<std::chrono::milliseconds>;

/// What a clock in `zone` shows at `instant`.
[[nodiscard]] LocalTime localTime(Instant instant, const platform::TimeZone& zone);

/// When a clock in `zone` shows `time`. Of a time that comes twice, the first; a time that the zone skips is
/// as much later as the zone skips.
[[nodiscard]] Instant instantOf(LocalTime time, const platform::TimeZone& zone);

/// The offsets of a zone on many days: quick if one lies near the one before it. Takes a zone's offset as the
/// same for two weeks if it is the same at both of its ends.
class DayOffsets final {
public:
    /// `zone` must outlive it.
    explicit DayOffsets(const platform::TimeZone& zone) : zone_(zone) {}

    /// The offset from UTC of every time of `day`; nothing if the clock changes on it or on a day beside it.
    [[nodiscard]] std::optional<std::chrono::seconds> allDay(std::chrono::local_days day);

private:
    [[nodiscard]] std::optional<std::chrono::seconds> steadyOffset(std::chrono::local_days first,
                                                                   std::chrono::days count) const;

    const platform::TimeZone& zone_;
    std::optional<std::chrono::local_days> stretchStart_;
    std::optional<std::chrono::seconds> offset_;  // of that stretch
};

/// The same time on the clock `count` calendar days later, or earlier if it is below 0.
[[nodiscard]] Instant plusDays(Instant instant, std::chrono::days count, const platform::TimeZone& zone);

}  // namespace tidewatch
