#pragma once

#include <optional>

namespace tidewatch::platform {

/// How much of the user's input the program can observe.
enum class InputCoverage {
    everything,   ///< input to any window
    someWindows,  ///< input to windows of another display protocol is not seen
    nothing,      ///< no source is available
};

/// Time since the last input from keyboard, mouse or any other device. Main thread only.
class InputActivity {
public:
    virtual ~InputActivity() = default;

    /// Seconds since the last input of any kind, 0 or more; nullopt if no source is available.
    [[nodiscard]] virtual std::optional<double> secondsSinceLastInput() const = 0;

    /// Constant for the life of the process.
    [[nodiscard]] virtual InputCoverage coverage() const = 0;
};

}  // namespace tidewatch::platform
