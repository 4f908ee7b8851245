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

/// The application's root object: installs every long-lived observer and timer, and decides when the stores
/// reach the disk outside the tick's own cadence. Main thread only.
class AppDelegate final {
public:
    /// What the delegate works with; all of it must outlive it.
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
        /// What the status item says at this moment.
        std::function<StatusTitle()> title;
        /// The status menu as it stands at this moment.
        std::function<MenuRows()> menu;
    };

    explicit AppDelegate(Dependencies dependencies);
    ~AppDelegate();

    /// Once, when the main loop is about to run.
    void applicationDidFinishLaunching();

    /// The whole of the shutdown: everything is written.
    void applicationWillTerminate();

    /// The program was started again, or asked to come to the front.
    void applicationShouldHandleReopen();

    /// The session may be about to end: what is known is written, and counting goes on.
    void flushAllStores();

    /// Puts the floating clock on the screen or takes it away, and keeps that over restarts.
    void toggleVisible();

    void refreshStatusBarTitle();

private:
    using Work = void (AppDelegate::*)();

    /// Does `work` in a job of its own, after those that are waiting already; not at all if this object is
    /// gone by then.
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
    /// Jobs that were posted and run after this object is gone find it expired.
    std::shared_ptr<AppDelegate*> self_ = std::make_shared<AppDelegate*>(this);
};

}  // namespace tidewatch
