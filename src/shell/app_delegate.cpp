#include "shell/app_delegate.h"

#include <chrono>
#include <utility>

namespace tidewatch {

AppDelegate::AppDelegate(Dependencies dependencies) : dependencies_(std::move(dependencies)) {}
AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching() {
    dependencies_.surfaces.registerFonts();
    dependencies_.clock.begin();
    dependencies_.statusBar.begin([this](StatusItem::Click click) { handleStatusClick(click); });
    observeBroadcasts();
    dependencies_.engine.start();
    dependencies_.widgets().restoreVisible();
    dependencies_.notifications.requestAuthorization();
    // Posted, like the engine's tick, so that each second's tick has run before.
    menuRefreshTimer_ =
        dependencies_.mainLoop.repeat(std::chrono::seconds(1), platform::TimerMode::defaultOnly,
                                      [this] { postLater(&AppDelegate::refreshTimerFired); });
}

void AppDelegate::applicationWillTerminate() {
    dependencies_.engine.stop();
    dependencies_.record.flushCategories();
}

void AppDelegate::applicationShouldHandleReopen() {
    dependencies_.record.flushForReopening();
    dependencies_.statistics.showWindow();
    dependencies_.clock.bringBackWithoutTray();
}

void AppDelegate::flushAllStores() {
    dependencies_.record.flushAll();
}

void AppDelegate::observeBroadcasts() {
    auto& broadcaster = dependencies_.broadcaster;
    const auto doing = [this](Work work) { return [this, work](const auto&) { postLater(work); }; };
    observers_.push_back(broadcaster.observe<ThemeChanged>(doing(&AppDelegate::applyLayoutChange)));
    observers_.push_back(broadcaster.observe<SizeChanged>(doing(&AppDelegate::applyLayoutChange)));
    observers_.push_back(broadcaster.observe<ProjectsChanged>(doing(&AppDelegate::refreshStatusBarTitle)));
    observers_.push_back(
        broadcaster.observe<FloatingPanelClicked>(doing(&AppDelegate::floatingPanelClicked)));
}

void AppDelegate::postLater(Work work) {
    dependencies_.mainLoop.post([self = std::weak_ptr(self_), work] {
        if (const auto alive = self.lock()) ((*alive)->*work)();
    });
}

void AppDelegate::applyLayoutChange() {
    dependencies_.clock.applySize();
    refreshStatusBarTitle();
}

void AppDelegate::floatingPanelClicked() {
    if (dependencies_.statistics.isVisible()) {
        dependencies_.statistics.close();
        return;
    }
    dependencies_.record.flushAll();
    dependencies_.statistics.showWindow();
}

void AppDelegate::handleStatusClick(StatusItem::Click click) {
    if (click == StatusItem::Click::left && !dependencies_.statistics.isVisible()) {
        dependencies_.record.flushAll();
        dependencies_.statistics.showWindow();
    } else {
        dependencies_.statusBar.openMenu();
    }
}

void AppDelegate::refreshStatusBarTitle() {
    dependencies_.statusBar.refreshTitle();
}

void AppDelegate::refreshTimerFired() {
    // First, right after the tick: drawing takes time, in which the day may change.
    dependencies_.record.setDayUnderCurrentKey();
    refreshStatusBarTitle();
    dependencies_.notifications.checkDailyMilestones();
    dependencies_.record.flushCategories();
    dependencies_.statusBar.secondPassed();
}

}  // namespace tidewatch
