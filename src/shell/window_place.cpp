#include "shell/window_place.h"

#include <algorithm>

namespace tidewatch {

std::optional<platform::Point> placeOnScreen(const StoredPlace& stored, const platform::Screens& screens) {
    const auto place = stored.load();
    if (!place) return std::nullopt;
    const auto all = screens.all();
    const bool onScreen = std::any_of(all.begin(), all.end(), [&](const platform::Screen& screen) {
        return screen.frame.contains(*place);
    });
    return onScreen ? place : std::nullopt;
}

std::optional<platform::Point> topRightCorner(const platform::Screens& screens, PanelSize size,
                                              double margin) {
    const auto main = screens.main();
    if (!main) return std::nullopt;
    const auto& visible = main->visibleFrame;
    return platform::Point{visible.x + visible.width - size.width - margin, visible.y + margin};
}

}  // namespace tidewatch
