#pragma once

#include <optional>

namespace tidewatch::platform {

/// How much of the user's input a machine lets the program notice.
enum class InputCoverage {
    everything,   ///< input to any window
    someWindows,  ///< input to windows of another protocol than this program's goes unseen
    nothing,      ///< there is no source at all
};

/// How long ago the user last touched keyboard, mouse or any other input device. Main thread only.
class InputActivity {
public:
    virtual ~InputActivity() = default;

    /// Seconds since the last input of any kind, 0 or more; nothing if the machine has no source for it.
    [[nodiscard]] virtual std::optional<double> secondsSinceLastInput() const = 0;

    /// The same for the life of the process.
    [[nodiscard]] virtual InputCoverage coverage() const = 0;
};

}  // namespace tidewatch::platform
