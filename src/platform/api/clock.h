#pragma once

#include <chrono>
#include <memory>

#include "base/instant.h"

namespace tidewatch::platform {

/// One set of time-zone rules. Immutable: it does not follow later changes of the machine's zone.
/// Thread-safe.
class TimeZone {
public:
    virtual ~TimeZone() = default;

    /// Offset of local time from UTC at `instant`, daylight saving included; east is positive.
    [[nodiscard]] virtual std::chrono::seconds utcOffset(Instant instant) const = 0;
};

/// The machine's clocks. Thread-safe.
class Clock {
public:
    virtual ~Clock() = default;

    /// Wall-clock time; may jump in either direction.
    [[nodiscard]] virtual Instant now() const = 0;

    /// Never decreases; does not advance while the machine sleeps. Only differences are meaningful.
    [[nodiscard]] virtual std::chrono::nanoseconds monotonic() const = 0;

    /// The machine's current time zone; UTC if it cannot be determined.
    [[nodiscard]] virtual std::shared_ptr<const TimeZone> timeZone() const = 0;
};

}  // namespace tidewatch::platform
