#pragma once

#include <functional>
#include <memory>

namespace tidewatch {

/// The keys that the games use.
enum class GameKey { left, right, up, down, space, p };

/// What becomes of a key press.
enum class KeyPress {
    consumed,  ///< nobody else receives it
    passedOn,  ///< it takes its ordinary way
};

/// A running observation of the keyboard; ends on destruction. Main thread only.
class KeyObservation {
public:
    virtual ~KeyObservation() = default;
};

/// Key presses in the program's own windows, seen before whatever has the focus. Main thread only.
class KeyMonitor {
public:
    using Handler = std::function<KeyPress(GameKey)>;

    virtual ~KeyMonitor() = default;

    /// Calls `handler` for each press of a game key, including the keyboard's repetitions, except while a
    /// text field has the focus. `handler` may destroy the observation. The monitor must outlive the
    /// observation.
    [[nodiscard]] virtual std::unique_ptr<KeyObservation> observe(Handler handler) = 0;
};

}  // namespace tidewatch
