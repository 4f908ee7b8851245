#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "base/signal.h"
#include "classification/category_store.h"
#include "core/broadcaster.h"
#include "core/settings.h"
#include "core/timer_engine.h"
#include "platform/api/main_loop.h"
#include "platform/api/screens.h"
#include "platform/api/user_notifications.h"
#include "projects/project_time_store.h"
#include "shell/floating_panel.h"
#include "shell/menu_row.h"
#include "shell/status_title.h"
#include "shell/surfaces.h"
#include "shell/themes/theme_controller.h"
#include "wellbeing/notification_manager.h"

namespace tidewatch {

/// The application's root object: installs all long-lived observers and timers, and decides when the stores
/// are flushed outside the tick's own schedule. Main thread only.
class AppDelegate final {
public:
    /// All of it must outlive the delegate.
    struct Dependencies {
        platform::MainLoop& mainLoop;
        const platform::Screens& screens;
        platform::UserNotifications& legacyNotifications;
        Settings& settings;
        Broadcaster& broadcaster;
        TimerEngine& engine;
        CounterStores counters;
        ProjectTimeStore& projectTime;
        CategoryStore& categories;
        NotificationManager& notifications;
        const ThemeController& theme;
        Surfaces& surfaces;
        StatisticsWindow& statistics;
        /// The status item's current title.
        std::function<StatusTitle()> title;
        /// The current status menu.
        std::function<MenuRows()> menu;
    };

    explicit AppDelegate(Dependencies dependencies);
    ~AppDelegate();

    /// Called once, before the main loop runs.
    void applicationDidFinishLaunching();

    /// Shuts down: writes everything.
    void applicationWillTerminate();

    /// The program was started again, or asked to come to the front.
    void applicationShouldHandleReopen();

    /// The session may be about to end: writes everything, and counting continues.
    void flushAllStores();

    /// Shows or hides the floating clock, persistently.
    void toggleVisible();

    void refreshStatusBarTitle();

private:
    using Work = void (AppDelegate::*)();

    /// Posts `work` to the main loop; dropped if this object has been destroyed by then.
    void postLater(Work work);
    void applyLayoutChange();
    void observeBroadcasts();
    void connectPanel();
    void serveLegacyNotifications();
    void floatingPanelClicked();
    void handleStatusClick(StatusItem::Click click);
    void openMenu();
    void refreshTimerFired();
    void setDayUnderCurrentKey();
    void warnOnceWithoutTray();
    [[nodiscard]] PanelSize panelSize() const;

    Dependencies dependencies_;
    std::unique_ptr<PanelWindow> window_;
    std::unique_ptr<FloatingPanel> panel_;
    std::unique_ptr<StatusItem> statusItem_;
    std::vector<Connection> observers_;
    std::unique_ptr<platform::RepeatingTimer> menuRefreshTimer_;
    int secondsWithoutTray_ = 0;
    /// Expires with this object, for posted jobs.
    std::shared_ptr<AppDelegate*> self_ = std::make_shared<AppDelegate*>(this);
};

}  // namespace tidewatch
