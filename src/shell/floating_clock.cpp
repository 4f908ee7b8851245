#include "shell/floating_clock.h"

namespace tidewatch {

void FloatingClock::begin() {
    window_ = dependencies_.surfaces.makeClockWindow(size());
    panel_ = std::make_unique<FloatingPanel>(*window_, dependencies_.screens, owner());
    if (dependencies_.settings.windowVisible()) panel_->orderFrontRegardless();
}

void FloatingClock::applySize() {
    panel_->resize(size());
}

void FloatingClock::toggleVisible() {
    const bool wasVisible = panel_->isVisible();
    if (wasVisible) {
        panel_->orderOut();
    } else {
        panel_->orderFrontRegardless();
    }
    dependencies_.settings.setWindowVisible(!wasVisible);
    if (wasVisible && !dependencies_.hasTray()) hintAtMenu();
}

void FloatingClock::bringBackWithoutTray() {
    if (!panel_->isVisible() && !dependencies_.hasTray()) toggleVisible();
}

void FloatingClock::hintAtMenu() {
    dependencies_.surfaces.showHint(
        panel_->isVisible()
            ? "No hay bandeja del sistema: el menú se abre con el botón derecho sobre el reloj."
            : "No hay bandeja del sistema: para volver a ver el reloj y su menú, abre Tidewatch otra vez.");
}

FloatingPanel::Owner FloatingClock::owner() {
    return {
        .place = {.load = [this] { return dependencies_.settings.windowOrigin(); },
                  .save = [this](platform::Point origin) { dependencies_.settings.setWindowOrigin(origin); }},
        .defaultPlace =
            [this](PanelSize size) { return topRightCorner(dependencies_.screens, size, margin); },
        .clicked = [this] { dependencies_.broadcaster.post(FloatingPanelClicked{}); },
        .menuRequested = dependencies_.openMenu,
    };
}

PanelSize FloatingClock::size() const {
    const auto& base = dependencies_.theme.active().size;
    const auto scale = dependencies_.settings.sizeScale();
    return {base.width * scale, base.height * scale};
}

}  // namespace tidewatch
