#pragma once

#include "platform/api/input_activity.h"

namespace tidewatch::platform {

/// Input scripted by the test; initially the user is active.
class FakeInputActivity final : public InputActivity {
public:
    [[nodiscard]] std::optional<double> secondsSinceLastInput() const override { return seconds_; }

    [[nodiscard]] InputCoverage coverage() const override { return coverage_; }

    void setCoverage(InputCoverage coverage) { coverage_ = coverage; }

    /// Nullopt means that no source is available.
    void set(std::optional<double> seconds) { seconds_ = seconds; }

private:
    std::optional<double> seconds_ = 0;
    InputCoverage coverage_ = InputCoverage::everything;
};

}  // namespace tidewatch::platform
