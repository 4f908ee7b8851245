#pragma once

#include <chrono>
#include <optional>

#include "base/instant.h"
#include "platform/api/clock.h"

namespace tidewatch {

/// A local date and time of day, in the proleptic Gregorian calendar.
using LocalTime = std::chrono::local_time<std::chrono::milliseconds>;

/// The local time in `zone` at `instant`.
[[nodiscard]] LocalTime localTime(Instant instant, const platform::TimeZone& zone);

/// The instant of a local time in `zone`: of an ambiguous time the first; a skipped time is shifted forward
/// by the gap.
[[nodiscard]] Instant instantOf(LocalTime time, const platform::TimeZone& zone);

/// Caches the UTC offsets of a zone: fast for days queried in order. Assumes that the offset is constant over
/// two weeks if it is equal at both ends.
class DayOffsets final {
public:
    /// `zone` must outlive it.
    explicit DayOffsets(const platform::TimeZone& zone) : zone_(zone) {}

    /// The UTC offset of all of `day`; nullopt if it changes on that day or an adjacent one.
    [[nodiscard]] std::optional<std::chrono::seconds> allDay(std::chrono::local_days day);

private:
    [[nodiscard]] std::optional<std::chrono::seconds> steadyOffset(std::chrono::local_days first,
                                                                   std::chrono::days count) const;

    const platform::TimeZone& zone_;
    std::optional<std::chrono::local_days> stretchStart_;
    std::optional<std::chrono::seconds> offset_;  // of that period
};

/// The same local time `count` calendar days later, or earlier if negative.
[[nodiscard]] Instant plusDays(Instant instant, std::chrono::days count, const platform::TimeZone& zone);

}  // namespace tidewatch
