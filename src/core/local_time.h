#pragma once

#include <chrono>
#include <optional>

#include "base/instant.h"
#include "platform/api/clock.h"

namespace tidewatch {

/// A date and a time of day as a clock on the wall shows them, proleptic Gregorian.
using WallTime = std::chrono::local_time<std::chrono::milliseconds>;

/// What a clock in `zone` shows at `instant`.
[[nodiscard]] WallTime wallTime(Instant instant, const platform::TimeZone& zone);

/// When a clock in `zone` shows `time`. Of a time that comes twice, the first; a time that the zone skips is
/// as much later as the zone skips.
[[nodiscard]] Instant instantOf(WallTime time, const platform::TimeZone& zone);

/// instantOf() for many times: quick if one lies near the one before it. Takes a zone's offset as the same
/// for a whole week if it is the same at both of its ends.
class InstantReader final {
public:
    /// `zone` must outlive it.
    explicit InstantReader(const platform::TimeZone& zone) : zone_(zone) {}

    [[nodiscard]] Instant instantOf(WallTime time);

private:
    void turnTo(std::chrono::local_days firstDay);

    const platform::TimeZone& zone_;
    std::optional<std::chrono::local_days> week_;  // its first day
    std::optional<std::chrono::seconds> offset_;   // of the whole week, if it has one
};

/// The same time on the clock `count` calendar days later, or earlier if it is below 0.
[[nodiscard]] Instant plusDays(Instant instant, std::chrono::days count, const platform::TimeZone& zone);

}  // namespace tidewatch
