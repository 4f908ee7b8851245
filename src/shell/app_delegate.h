#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "base/signal.h"
#include "core/broadcaster.h"
#include "core/timer_engine.h"
#include "platform/api/main_loop.h"
#include "shell/floating_clock.h"
#include "shell/record_writer.h"
#include "shell/status_bar.h"
#include "shell/surfaces.h"
#include "shell/widgets/widget_manager.h"
#include "wellbeing/notification_manager.h"

namespace tidewatch {

/// The application's root object: creates the surfaces, installs all long-lived observers and timers, and
/// decides when the record is flushed outside the tick's own schedule. Main thread only.
class AppDelegate final {
public:
    /// All of it must outlive the delegate.
    struct Dependencies {
        platform::MainLoop& mainLoop;
        Broadcaster& broadcaster;
        TimerEngine& engine;
        NotificationManager& notifications;
        RecordWriter& record;
        Surfaces& surfaces;
        FloatingClock& clock;
        StatusBar& statusBar;
        StatisticsWindow& statistics;
        /// Builds the manager on its first call.
        std::function<WidgetManager&()> widgets;
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

private:
    using Work = void (AppDelegate::*)();

    /// Posts `work` to the main loop; dropped if this object has been destroyed by then.
    void postLater(Work work);
    void applyLayoutChange();
    void observeBroadcasts();
    void floatingPanelClicked();
    void handleStatusClick(StatusItem::Click click);
    void refreshStatusBarTitle();
    void refreshTimerFired();

    const Dependencies dependencies_;
    std::vector<Connection> observers_;
    std::unique_ptr<platform::RepeatingTimer> menuRefreshTimer_;
    /// Expires with this object, for posted jobs.
    std::shared_ptr<AppDelegate*> self_ = std::make_shared<AppDelegate*>(this);
};

}  // namespace tidewatch
