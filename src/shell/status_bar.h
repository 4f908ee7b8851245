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
        /// Their older way leads over the status item.
        platform::UserNotifications& notifications;
        /// The status item's current title.
        std::function<StatusTitle()> title;
        /// The current status menu.
        std::function<MenuRows()> menu;
    };

    explicit StatusBar(Dependencies dependencies) : dependencies_(std::move(dependencies)) {}

    /// Makes the item, once and before anything else here. `clicked` is told of each click on it.
    void begin(std::function<void(StatusItem::Click)> clicked);

    void refreshTitle();
    void openMenu();

    /// To be called once a second: says once that there is no tray, if none has appeared for a while.
    void secondPassed();

private:
    const Dependencies dependencies_;
    std::unique_ptr<StatusItem> item_;
    int secondsWithoutTray_ = 0;
};

}  // namespace tidewatch
