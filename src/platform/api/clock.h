#pragma once

#include <chrono>
#include <memory>

#include "base/instant.h"

namespace tidewatch::platform {

/// One set of time-zone rules. A value kept by whoever asked for it: it does not follow later changes
/// of the machine's zone. Safe from any thread.
class TimeZone {
public:
    virtual ~TimeZone() = default;

    /// Offset of local time from UTC at `instant`, daylight saving included; east is positive.
    [[nodiscard]] virtual std::chrono::seconds utcOffset(Instant instant) const = 0;
};

/// The machine's clocks. Safe from any thread.
class Clock {
public:
    virtual ~Clock() = default;

    /// Wall-clock time; may jump in either direction.
    [[nodiscard]] virtual Instant now() const = 0;

    /// Never goes back; stands still while the machine sleeps. Only differences mean anything.
    [[nodiscard]] virtual std::chrono::nanoseconds monotonic() const = 0;

    /// The zone that the machine is set to at this moment; UTC if it cannot be told.
    [[nodiscard]] virtual std::shared_ptr<const TimeZone> timeZone() const = 0;
};

}  // namespace tidewatch::platform
