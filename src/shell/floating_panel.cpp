#include "shell/floating_panel.h"

#include <algorithm>
#include <cmath>

namespace tidewatch {

FloatingPanel::FloatingPanel(PanelWindow& window, Settings& settings, const platform::Screens& screens,
                             const Broadcaster& broadcaster)
    : window_(window), settings_(settings), broadcaster_(broadcaster) {
    place(screens);
}

void FloatingPanel::place(const platform::Screens& screens) {
    if (const auto stored = settings_.windowOrigin()) {
        const auto all = screens.all();
        const bool onScreen = std::any_of(all.begin(), all.end(), [&](const platform::Screen& screen) {
            return screen.frame.contains(*stored);
        });
        if (onScreen) {
            window_.setOrigin(*stored);
            return;
        }
    }
    if (const auto main = screens.main()) {
        const auto& visible = main->visibleFrame;
        window_.setOrigin(
            {visible.x + visible.width - window_.panelSize().width - margin, visible.y + margin});
    }
}

void FloatingPanel::resize(PanelSize size) {
    window_.resize(size);
    settings_.setWindowOrigin(window_.origin());
}

void FloatingPanel::mouseDown(platform::Point position) {
    mouseDownLocation_ = position;
    originAtMouseDown_ = window_.origin();
    dragging_ = false;
}

void FloatingPanel::mouseDragged(platform::Point position) {
    dragging_ = dragging_ || travel(position) >= dragDistance;
    if (!dragging_) return;
    window_.setOrigin({originAtMouseDown_.x + position.x - mouseDownLocation_.x,
                       originAtMouseDown_.y + position.y - mouseDownLocation_.y});
}

void FloatingPanel::mouseUp(platform::Point position) {
    settings_.setWindowOrigin(window_.origin());
    if (travel(position) < dragDistance) broadcaster_.post(FloatingPanelClicked{});
}

double FloatingPanel::travel(platform::Point position) const {
    return std::hypot(position.x - mouseDownLocation_.x, position.y - mouseDownLocation_.y);
}

}  // namespace tidewatch
