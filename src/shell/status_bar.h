#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "platform/api/user_notifications.h"
#include "shell/menu_row.h"
#include "shell/status_title.h"
#include "shell/surfaces.h"

namespace tidewatch {

/// The status item with its figure and its menu. Main thread only.
class StatusBar final {
public:
    /// All of it must outlive the status bar.
    struct Dependencies {
        Surfaces& surfaces;
        /// Their legacy service is the status item.
        platform::UserNotifications& notifications;
        /// The status item's current title.
        std::function<StatusTitle()> title;
        /// The current status menu.
        std::function<MenuRows()> menu;
        /// Called once, when the item is in a tray or when none has appeared for a while.
        std::function<void(bool hasTray)> trayKnown;
        /// Called once, when there has been no tray for a while.
        std::function<void()> trayMissing;
    };

    explicit StatusBar(Dependencies dependencies) : dependencies_(std::move(dependencies)) {}

    /// Creates the item. Must be called once, before anything else. `clicked` is called for each click.
    void begin(std::function<void(StatusItem::Click)> clicked);

    void refreshTitle();
    void openMenu();

    /// Whether a tray shows the item.
    [[nodiscard]] bool isInTray() const { return item_->isShown(); }

    /// Must be called once a second: looks for the tray.
    void secondPassed();

private:
    void reportTray(bool hasTray);

    const Dependencies dependencies_;
    std::unique_ptr<StatusItem> item_;
    int secondsWithoutTray_ = 0;
    bool isTrayReported_ = false;
};

}  // namespace tidewatch
