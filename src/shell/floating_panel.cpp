#include "shell/floating_panel.h"

#include <utility>

namespace tidewatch {

FloatingPanel::FloatingPanel(FloatingWindow& window, platform::Screens& screens, Owner owner)
    : window_(window),
      screens_(screens),
      owner_(std::move(owner)),
      screenChanges_(screens.onChanged([this] { adaptToScreens(); })) {
    if (const auto place = wantedPlace()) window_.setOrigin(*place);
    window_.setGestures({
        .mouseDown = [this](platform::Point position) { mouseDown(position); },
        .mouseDragged = [this](platform::Point position) { mouseDragged(position); },
        .mouseUp = [this](platform::Point position) { mouseUp(position); },
        .menuRequested = owner_.menuRequested,
    });
}

std::optional<platform::Point> FloatingPanel::wantedPlace() const {
    const auto stored = placeOnScreen(owner_.place, screens_);
    return stored ? stored : owner_.defaultPlace(window_.panelSize());
}

/// The stored position is kept: the screen that showed it may come back.
void FloatingPanel::adaptToScreens() {
    window_.fitToScreens();
    if (const auto place = wantedPlace()) {
        window_.setOrigin(heldOnScreen(*place, window_.panelSize(), screens_));
    }
}

void FloatingPanel::resize(PanelSize size) {
    window_.resize(size);
    owner_.place.save(window_.origin());
}

void FloatingPanel::mouseDown(platform::Point position) {
    drag_.press(position, window_.origin());
}

void FloatingPanel::mouseDragged(platform::Point position) {
    if (const auto origin = drag_.move(position)) window_.setOrigin(*origin);
}

void FloatingPanel::mouseUp(platform::Point position) {
    owner_.place.save(window_.origin());
    if (drag_.isClick(position)) owner_.clicked();
}

}  // namespace tidewatch
