#pragma once

#include <limits>

#include "platform/api/input_activity.h"

namespace tidewatch {

/// Tells how long the user has been idle. Main thread only.
class IdleMonitor final {
public:
    /// `input` must outlive it.
    explicit IdleMonitor(const platform::InputActivity& input) : input_(input) {}

    /// Seconds since the last input of any kind. Infinite if no source is available: time is booked only if
    /// known to be active.
    [[nodiscard]] double secondsSinceLastInput() const {
        return input_.secondsSinceLastInput().value_or(std::numeric_limits<double>::infinity());
    }

    /// Whether the machine has a source of input times.
    [[nodiscard]] bool hasSource() const { return input_.secondsSinceLastInput().has_value(); }

private:
    const platform::InputActivity& input_;
};

}  // namespace tidewatch
