#pragma once

#include <chrono>
#include <memory>
#include <vector>

#include "platform/api/clock.h"

namespace tidewatch::platform {

/// A zone defined by its offset transitions.
class FakeTimeZone final : public TimeZone {
public:
    struct Transition {
        Instant at;
        std::chrono::seconds offset;  ///< from `at` on
    };

    /// `transitions` in ascending order.
    FakeTimeZone(std::chrono::seconds initialOffset, std::vector<Transition> transitions);

    [[nodiscard]] std::chrono::seconds utcOffset(Instant instant) const override;

private:
    const std::chrono::seconds initialOffset_;
    const std::vector<Transition> transitions_;
};

/// A constant offset.
[[nodiscard]] std::shared_ptr<const TimeZone> fixedZone(std::chrono::seconds offset);

/// UTC+1, and +2 from the last Sunday of March to the last Sunday of October, 01:00 UTC; right for
/// 1996 to 2099.
[[nodiscard]] std::shared_ptr<const TimeZone> madridZone();

/// UTC-6, and -5 from the first Sunday of April, 02:00, to the last of October, 02:00 summer time; since the
/// autumn of 2022 UTC-6 for good. Right from 2002 on.
[[nodiscard]] std::shared_ptr<const TimeZone> mexicoCityZone();

}  // namespace tidewatch::platform
