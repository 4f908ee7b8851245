#include "shell/status_bar.h"

#include <utility>

namespace tidewatch {

namespace {

/// How long a tray may take to appear before it counts as missing, in seconds; at session start the program
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
    if (isInTray()) {
        secondsWithoutTray_ = 0;
        reportTray(true);
        return;
    }
    if (++secondsWithoutTray_ <= trayTimeout) return;
    dependencies_.trayMissing();
    reportTray(false);
}

void StatusBar::reportTray(bool hasTray) {
    if (!std::exchange(isTrayReported_, true)) dependencies_.trayKnown(hasTray);
}

}  // namespace tidewatch
