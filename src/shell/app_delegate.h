#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "base/signal.h"
#include "platform/api/main_loop.h"
#include "platform/api/platform.h"
#include "shell/export_commands.h"
#include "shell/floating_panel.h"
#include "shell/project_commands.h"
#include "shell/services.h"
#include "shell/status_commands.h"
#include "shell/surfaces.h"
#include "shell/themes/theme_controller.h"
#include "shell/themes/theme_registry.h"

namespace tidewatch {

/// The application's root object: installs every long-lived observer and timer, and decides when the stores
/// reach the disk outside the tick's own cadence. Main thread only.
class AppDelegate final {
public:
    /// What the delegate works with; all of it must outlive it.
    struct Parts {
        const platform::Platform& platform;
        Services& services;
        const ThemeRegistry& themes;
        ThemeController& theme;
        Surfaces& surfaces;
        StatisticsWindow& statistics;
        ExportCommands& exports;
        /// Ends the program in the ordinary way.
        std::function<void()> terminate;
    };

    explicit AppDelegate(Parts parts);
    ~AppDelegate();

    /// Once, when the main loop is about to run.
    void applicationDidFinishLaunching();

    /// The whole of the shutdown: everything is written.
    void applicationWillTerminate();

    /// The program was started again, or asked to come to the front.
    void applicationShouldHandleReopen();

    /// The session may be about to end: what is known is written, and counting goes on.
    void flushAllStores();

private:
    using Work = void (AppDelegate::*)();

    /// Does `work` in a job of its own, after those that are waiting already; not at all if this object is
    /// gone by then.
    void later(Work work);
    void applyLayoutChange();
    void observeBroadcasts();
    void connectPanel();
    void makeCommands();
    void serveOlderNotifications();
    void floatingPanelClicked();
    void handleStatusClick(StatusItem::Click click);
    void openMenu();
    void refreshStatusBarTitle();
    void refreshTimerFired();
    void setDayUnderCurrentKey();
    void sayOnceThatThereIsNoTray();
    [[nodiscard]] PanelSize panelSize() const;

    Parts with_;
    std::unique_ptr<PanelWindow> window_;
    std::unique_ptr<FloatingPanel> panel_;
    std::unique_ptr<StatusItem> statusItem_;
    std::unique_ptr<StatusCommands> commands_;
    std::unique_ptr<ProjectCommands> projectCommands_;
    std::vector<Connection> observers_;
    std::unique_ptr<platform::RepeatingTimer> menuRefreshTimer_;
    int secondsWithoutTray_ = 0;
    /// Jobs that were posted and run after this object is gone find it expired.
    std::shared_ptr<AppDelegate*> self_ = std::make_shared<AppDelegate*>(this);
};

}  // namespace tidewatch
