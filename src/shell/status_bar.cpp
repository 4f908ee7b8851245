#include "shell/status_bar.h"

#include <utility>

namespace tidewatch {

namespace {

/// How long a tray may take to appear before the user is notified, in seconds; at session start the program
/// may be faster than the tray.
constexpr int trayTimeout = 10;

}  // namespace

void StatusBar::begin(std::function<void(StatusItem::Click)> clicked) {
    item_ = dependencies_.surfaces.makeStatusItem();
    item_->offerMenu(dependencies_.menu);
    refreshTitle();
    dependencies_.notifications.setLegacyService([this](const platform::UserNotification& message) {
        item_->showMessage(message.title, message.body);
    });
    item_->onClick(std::move(clicked));
}

void StatusBar::refreshTitle() {
    item_->setTitle(dependencies_.title());
}

void StatusBar::openMenu() {
    item_->popUpMenu(dependencies_.menu());
}

void StatusBar::secondPassed() {
    if (secondsWithoutTray_ > trayTimeout) return;
    secondsWithoutTray_ = item_->isShown() ? 0 : secondsWithoutTray_ + 1;
    if (secondsWithoutTray_ > trayTimeout) {
        dependencies_.surfaces.showHint(
            "No hay bandeja del sistema: el menú se abre con el botón derecho sobre el reloj.");
    }
}

}  // namespace tidewatch
