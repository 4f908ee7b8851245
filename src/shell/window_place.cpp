#include "shell/window_place.h"

#include <algorithm>

namespace tidewatch {

namespace {

/// The frame of the screen that contains this point; nullopt if none does.
std::optional<platform::Rectangle> frameAt(platform::Point point, const platform::Screens& screens) {
    const auto all = screens.all();
    const auto found = std::ranges::find_if(
        all, [&](const platform::Screen& screen) { return screen.frame.contains(point); });
    return found == all.end() ? std::nullopt : std::optional(found->frame);
}

}  // namespace

std::optional<platform::Point> placeOnScreen(const StoredPlace& stored, const platform::Screens& screens) {
    const auto place = stored.load();
    return place && frameAt(*place, screens) ? place : std::nullopt;
}

platform::Point heldOnScreen(platform::Point origin, PanelSize size, const platform::Screens& screens) {
    const auto frame = frameAt(origin, screens);
    if (!frame || frameAt({origin.x + size.width / 2, origin.y + size.height / 2}, screens)) return origin;
    const double right = std::max(frame->x, frame->x + frame->width - size.width);
    const double bottom = std::max(frame->y, frame->y + frame->height - size.height);
    return {std::min(origin.x, right), std::min(origin.y, bottom)};
}

std::optional<platform::Point> topRightCorner(const platform::Screens& screens, PanelSize size,
                                              double margin) {
    const auto main = screens.main();
    if (!main) return std::nullopt;
    const auto& visible = main->visibleFrame;
    return platform::Point{visible.x + visible.width - size.width - margin, visible.y + margin};
}

}  // namespace tidewatch
