#pragma once

#include <optional>

namespace tidewatch::platform {

/// How long ago the user last touched keyboard, mouse or any other input device. Main thread only.
class InputActivity {
public:
    virtual ~InputActivity() = default;

    /// Seconds since the last input of any kind, 0 or more; nothing if the machine has no source for it.
    [[nodiscard]] virtual std::optional<double> secondsSinceLastInput() const = 0;
};

}  // namespace tidewatch::platform
