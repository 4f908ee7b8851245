#pragma once

#include <functional>
#include <optional>

#include "platform/api/screens.h"
#include "shell/themes/theme.h"

namespace tidewatch {

/// Where a floating window stood last, as its owner keeps it under a key of that window's own.
struct StoredPlace {
    /// nullopt if none was stored.
    std::function<std::optional<platform::Point>()> load;
    std::function<void(platform::Point)> save;
};

/// The stored place; nullopt if there is none or no screen shows it any more.
[[nodiscard]] std::optional<platform::Point> placeOnScreen(const StoredPlace& stored,
                                                           const platform::Screens& screens);

/// Where a window of `size` stands in the top right corner of the main screen, `margin` points from what
/// panels leave free; nullopt without a screen.
[[nodiscard]] std::optional<platform::Point> topRightCorner(const platform::Screens& screens, PanelSize size,
                                                            double margin);

}  // namespace tidewatch
