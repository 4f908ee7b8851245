#pragma once

#include "platform/api/input_activity.h"
#include "platform/x11/x11_connection.h"

namespace tidewatch::platform {

/// Idle time from the X server's screen-saver extension: accurate to some milliseconds, about ten
/// microseconds per query.
class X11InputActivity final : public InputActivity {
public:
    /// `connection` must outlive this object.
    explicit X11InputActivity(const X11Connection& connection);

    [[nodiscard]] std::optional<double> secondsSinceLastInput() const override;
    [[nodiscard]] InputCoverage coverage() const override { return coverage_; }

private:
    const X11Connection& connection_;
    InputCoverage coverage_;
};

}  // namespace tidewatch::platform
