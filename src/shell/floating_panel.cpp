#include "shell/floating_panel.h"

#include <utility>

namespace tidewatch {

FloatingPanel::FloatingPanel(FloatingWindow& window, const platform::Screens& screens, Owner owner)
    : window_(window), owner_(std::move(owner)) {
    place(screens);
    window_.setGestures({
        .mouseDown = [this](platform::Point position) { mouseDown(position); },
        .mouseDragged = [this](platform::Point position) { mouseDragged(position); },
        .mouseUp = [this](platform::Point position) { mouseUp(position); },
        .menuRequested = owner_.menuRequested,
    });
}

void FloatingPanel::place(const platform::Screens& screens) {
    auto origin = placeOnScreen(owner_.place, screens);
    if (!origin) origin = owner_.defaultPlace(window_.panelSize());
    if (origin) window_.setOrigin(*origin);
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
