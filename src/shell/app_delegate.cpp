#include "shell/app_delegate.h"

#include <chrono>
#include <utility>

#include "platform/api/main_loop.h"
#include "platform/api/user_notifications.h"

namespace tidewatch {

namespace {

/// How long a tray may take to appear before the user is told, in seconds; at session start the program may
/// be faster than the tray.
constexpr int trayTimeout = 10;

}  // namespace

AppDelegate::AppDelegate(Dependencies dependencies) : dependencies_(std::move(dependencies)) {}
AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching() {
    dependencies_.surfaces.registerFonts();
    window_ = dependencies_.surfaces.makePanelWindow(panelSize());
    panel_ = std::make_unique<FloatingPanel>(*window_, dependencies_.settings, dependencies_.screens,
                                             dependencies_.broadcaster);
    connectPanel();
    if (dependencies_.settings.windowVisible()) panel_->orderFrontRegardless();
    statusItem_ = dependencies_.surfaces.makeStatusItem();
    refreshStatusBarTitle();
    serveLegacyNotifications();
    statusItem_->onClick([this](StatusItem::Click click) { handleStatusClick(click); });
    observeBroadcasts();
    dependencies_.engine.start();
    dependencies_.notifications.requestAuthorization();
    // Posted, like the engine's tick, so that each second's tick has run before.
    menuRefreshTimer_ =
        dependencies_.mainLoop.repeat(std::chrono::seconds(1), platform::TimerMode::defaultOnly,
                                      [this] { postLater(&AppDelegate::refreshTimerFired); });
}

void AppDelegate::applicationWillTerminate() {
    dependencies_.engine.stop();
    dependencies_.categories.flushRegistered();
}

void AppDelegate::applicationShouldHandleReopen() {
    setDayUnderCurrentKey();
    dependencies_.counters.daily.flush();
    dependencies_.counters.apps.flush();
    dependencies_.counters.hours.flush();
    dependencies_.statistics.showWindow();
}

void AppDelegate::flushAllStores() {
    setDayUnderCurrentKey();
    dependencies_.counters.daily.flush();
    dependencies_.counters.apps.flush();
    dependencies_.counters.hours.flush();
    dependencies_.counters.minutes.flush();
    dependencies_.projectTime.flush();
}

void AppDelegate::toggleVisible() {
    const bool wasVisible = panel_->isVisible();
    if (wasVisible) {
        panel_->orderOut();
    } else {
        panel_->orderFrontRegardless();
    }
    dependencies_.settings.setWindowVisible(!wasVisible);
}

void AppDelegate::connectPanel() {
    window_->setGestures({
        .mouseDown = [this](platform::Point position) { panel_->mouseDown(position); },
        .mouseDragged = [this](platform::Point position) { panel_->mouseDragged(position); },
        .mouseUp = [this](platform::Point position) { panel_->mouseUp(position); },
        .menuRequested = [this] { openMenu(); },
    });
}

void AppDelegate::serveLegacyNotifications() {
    dependencies_.legacyNotifications.setLegacyService([this](const platform::UserNotification& message) {
        statusItem_->showMessage(message.title, message.body);
    });
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
    panel_->resize(panelSize());
    refreshStatusBarTitle();
}

void AppDelegate::floatingPanelClicked() {
    if (dependencies_.statistics.isVisible()) {
        dependencies_.statistics.close();
        return;
    }
    flushAllStores();
    dependencies_.statistics.showWindow();
}

void AppDelegate::handleStatusClick(StatusItem::Click click) {
    if (click == StatusItem::Click::left && !dependencies_.statistics.isVisible()) {
        flushAllStores();
        dependencies_.statistics.showWindow();
    } else {
        openMenu();
    }
}

void AppDelegate::openMenu() {
    statusItem_->popUpMenu(dependencies_.menu());
}

void AppDelegate::refreshStatusBarTitle() {
    statusItem_->setTitle(dependencies_.title());
}

void AppDelegate::refreshTimerFired() {
    refreshStatusBarTitle();
    setDayUnderCurrentKey();
    dependencies_.notifications.checkDailyMilestones();
    dependencies_.categories.flushRegistered();
    warnOnceWithoutTray();
}

void AppDelegate::setDayUnderCurrentKey() {
    dependencies_.counters.daily.set(dependencies_.engine.todaySeconds(),
                                     dependencies_.counters.daily.today());
}

void AppDelegate::warnOnceWithoutTray() {
    if (secondsWithoutTray_ > trayTimeout) return;
    secondsWithoutTray_ = statusItem_->isShown() ? 0 : secondsWithoutTray_ + 1;
    if (secondsWithoutTray_ > trayTimeout) {
        dependencies_.surfaces.showHint(
            "No hay bandeja del sistema: el menú se abre con el botón derecho sobre el reloj.");
    }
}

PanelSize AppDelegate::panelSize() const {
    const auto& base = dependencies_.theme.active().size;
    const auto scale = dependencies_.settings.sizeScale();
    return {base.width * scale, base.height * scale};
}

}  // namespace tidewatch
