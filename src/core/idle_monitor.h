#pragma once

#include <limits>

#include "platform/api/input_activity.h"

namespace tidewatch {

/// The one question about the user's presence. Main thread only.
class IdleMonitor final {
public:
    /// `input` must outlive it.
    explicit IdleMonitor(const platform::InputActivity& input) : input_(input) {}

    /// Seconds since the last input of any kind. Infinite on a machine that cannot tell: what is not known
    /// to be work is not booked as work.
    [[nodiscard]] double secondsSinceLastInput() const {
        return input_.secondsSinceLastInput().value_or(std::numeric_limits<double>::infinity());
    }

    /// False on a machine that cannot tell when the last input was.
    [[nodiscard]] bool hasSource() const { return input_.secondsSinceLastInput().has_value(); }

private:
    const platform::InputActivity& input_;
};

}  // namespace tidewatch
