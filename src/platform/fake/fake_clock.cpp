#include "platform/fake/fake_clock.h"

#include "platform/fake/fake_time_zone.h"

namespace tidewatch::platform {

FakeClock::FakeClock(Instant now) : now_(now), zone_(fixedZone(std::chrono::seconds(0))) {}

Instant FakeClock::now() const {
    const std::lock_guard lock(mutex_);
    return now_;
}

std::chrono::nanoseconds FakeClock::monotonic() const {
    const std::lock_guard lock(mutex_);
    return monotonic_;
}

std::shared_ptr<const TimeZone> FakeClock::timeZone() const {
    const std::lock_guard lock(mutex_);
    return zone_;
}

void FakeClock::advance(std::chrono::milliseconds duration) {
    const std::lock_guard lock(mutex_);
    now_ += duration;
    monotonic_ += duration;
}

void FakeClock::suspend(std::chrono::milliseconds duration) {
    const std::lock_guard lock(mutex_);
    now_ += duration;
}

void FakeClock::setNow(Instant now) {
    const std::lock_guard lock(mutex_);
    now_ = now;
}

void FakeClock::setZone(std::shared_ptr<const TimeZone> zone) {
    const std::lock_guard lock(mutex_);
    zone_ = std::move(zone);
}

}  // namespace tidewatch::platform
