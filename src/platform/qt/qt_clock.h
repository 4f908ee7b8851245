#pragma once

#include "platform/api/clock.h"

namespace tidewatch::platform {

/// The machine's clocks, with the system's time-zone data.
class QtClock final : public Clock {
public:
    [[nodiscard]] Instant now() const override;
    [[nodiscard]] std::chrono::nanoseconds monotonic() const override;
    [[nodiscard]] std::shared_ptr<const TimeZone> timeZone() const override;
};

}  // namespace tidewatch::platform
