#pragma once

#include "platform/api/input_activity.h"

namespace tidewatch::platform {

/// Input as a test scripts it; at first the user is touching the machine.
class FakeInputActivity final : public InputActivity {
public:
    [[nodiscard]] std::optional<double> secondsSinceLastInput() const override { return seconds_; }

    [[nodiscard]] InputCoverage coverage() const override { return coverage_; }

    void setCoverage(InputCoverage coverage) { coverage_ = coverage; }

    /// Nothing stands for a machine without a source.
    void set(std::optional<double> seconds) { seconds_ = seconds; }

private:
    std::optional<double> seconds_ = 0;
    InputCoverage coverage_ = InputCoverage::everything;
};

}  // namespace tidewatch::platform
