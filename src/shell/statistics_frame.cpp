#include "shell/statistics_frame.h"

#include <algorithm>

namespace tidewatch {

namespace {

constexpr double margins = 28;  // both sides together
constexpr double minWidth = 900;
constexpr double maxWidth = 1360;
constexpr double minHeight = 620;
constexpr double maxHeight = 1000;
constexpr platform::Rectangle frameWithoutScreen{0, 0, 1440, 900};

platform::Rectangle visibleFrame(const platform::Screens& screens) {
    if (const auto main = screens.main()) return main->visibleFrame;
    const auto all = screens.all();
    return all.empty() ? frameWithoutScreen : all.front().visibleFrame;
}

}  // namespace

platform::Rectangle statisticsFrame(const platform::Rectangle& visible) {
    const double width = std::clamp(visible.width - margins, minWidth, maxWidth);
    const double height = std::clamp(visible.height - margins, minHeight, maxHeight);
    return {visible.x + visible.width / 2 - width / 2, visible.y + visible.height / 2 - height / 2, width,
            height};
}

platform::Rectangle statisticsFrame(const platform::Screens& screens) {
    return statisticsFrame(visibleFrame(screens));
}

}  // namespace tidewatch
