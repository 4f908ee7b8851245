#pragma once

#include <chrono>
#include <memory>
#include <mutex>

#include "platform/api/clock.h"

namespace tidewatch::platform {

/// A clock that never ticks by itself. Thread-safe.
class FakeClock final : public Clock {
public:
    /// Shows `now`; set to UTC.
    explicit FakeClock(Instant now);

    [[nodiscard]] Instant now() const override;
    [[nodiscard]] std::chrono::nanoseconds monotonic() const override;
    [[nodiscard]] std::shared_ptr<const TimeZone> timeZone() const override;

    /// Time passes, 0 or more.
    void advance(std::chrono::milliseconds duration);

    /// Time passes while the machine sleeps: the wall clock advances, the monotonic clock does not.
    void suspend(std::chrono::milliseconds duration);

    /// Sets the wall clock, in either direction.
    void setNow(Instant now);

    /// Changes the machine's zone. Zones returned before are unaffected.
    void setZone(std::shared_ptr<const TimeZone> zone);

private:
    mutable std::mutex mutex_;
    Instant now_;
    std::chrono::nanoseconds monotonic_{};
    std::shared_ptr<const TimeZone> zone_;
};

}  // namespace tidewatch::platform
