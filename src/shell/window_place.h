#pragma once

#include <functional>
#include <optional>

#include "platform/api/screens.h"
#include "shell/themes/theme.h"

namespace tidewatch {

/// Loads and stores the last position of a floating window, under its own key.
struct StoredPlace {
    /// nullopt if none was stored.
    std::function<std::optional<platform::Point>()> load;
    std::function<void(platform::Point)> save;
};

/// The stored position; nullopt if there is none or it is not on any screen.
[[nodiscard]] std::optional<platform::Point> placeOnScreen(const StoredPlace& stored,
                                                           const platform::Screens& screens);

/// `origin` if a screen shows the middle of a window of `size` there; else the nearest position at which the
/// screen that contains `origin` shows all of it, as far as it fits. Outside of all screens `origin` itself.
[[nodiscard]] platform::Point heldOnScreen(platform::Point origin, PanelSize size,
                                           const platform::Screens& screens);

/// The position of a window of `size` in the top right corner of the main screen's visible frame, with this
/// margin in points; nullopt without a screen.
[[nodiscard]] std::optional<platform::Point> topRightCorner(const platform::Screens& screens, PanelSize size,
                                                            double margin);

}  // namespace tidewatch
