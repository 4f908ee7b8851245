#include "shell/app_delegate.h"

#include <chrono>
#include <utility>

#include "platform/api/main_loop.h"
#include "platform/api/user_notifications.h"

namespace tidewatch {

namespace {

/// How long a tray may take to appear before its absence is told, in seconds; at the start of a session
/// the program may well be faster than the tray.
constexpr int trayPatience = 10;

}  // namespace

AppDelegate::AppDelegate(Parts parts) : with_(std::move(parts)) {}
AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching() {
    with_.surfaces.registerFonts();
    window_ = with_.surfaces.makePanelWindow(panelSize());
    panel_ = std::make_unique<FloatingPanel>(*window_, with_.settings, with_.screens, with_.broadcaster);
    connectPanel();
    if (with_.settings.windowVisible()) panel_->orderFrontRegardless();
    statusItem_ = with_.surfaces.makeStatusItem();
    refreshStatusBarTitle();
    serveOlderNotifications();
    statusItem_->onClick([this](StatusItem::Click click) { handleStatusClick(click); });
    observeBroadcasts();
    with_.engine.start();
    with_.notifications.requestAuthorization();
    // Posted, as the engine posts its tick: each second's tick has run before.
    menuRefreshTimer_ = with_.mainLoop.repeat(std::chrono::seconds(1), platform::TimerMode::defaultOnly,
                                              [this] { later(&AppDelegate::refreshTimerFired); });
}

void AppDelegate::applicationWillTerminate() {
    with_.engine.stop();
    with_.categories.flushRegistered();
}

void AppDelegate::applicationShouldHandleReopen() {
    setDayUnderCurrentKey();
    with_.counters.daily.flush();
    with_.counters.apps.flush();
    with_.counters.hours.flush();
    with_.statistics.showWindow();
}

void AppDelegate::flushAllStores() {
    setDayUnderCurrentKey();
    with_.counters.daily.flush();
    with_.counters.apps.flush();
    with_.counters.hours.flush();
    with_.counters.minutes.flush();
    with_.projectTime.flush();
}

void AppDelegate::toggleVisible() {
    const bool wasVisible = panel_->isVisible();
    if (wasVisible) {
        panel_->orderOut();
    } else {
        panel_->orderFrontRegardless();
    }
    with_.settings.setWindowVisible(!wasVisible);
}

void AppDelegate::connectPanel() {
    window_->setGestures({
        .mouseDown = [this](platform::Point position) { panel_->mouseDown(position); },
        .mouseDragged = [this](platform::Point position) { panel_->mouseDragged(position); },
        .mouseUp = [this](platform::Point position) { panel_->mouseUp(position); },
        .menuRequested = [this] { openMenu(); },
    });
}

void AppDelegate::serveOlderNotifications() {
    with_.olderNotifications.setOlderService([this](const platform::UserNotification& message) {
        statusItem_->showMessage(message.title, message.body);
    });
}

void AppDelegate::observeBroadcasts() {
    auto& broadcaster = with_.broadcaster;
    const auto doing = [this](Work work) { return [this, work](const auto&) { later(work); }; };
    observers_.push_back(broadcaster.observe<ThemeChanged>(doing(&AppDelegate::applyLayoutChange)));
    observers_.push_back(broadcaster.observe<SizeChanged>(doing(&AppDelegate::applyLayoutChange)));
    observers_.push_back(broadcaster.observe<ProjectsChanged>(doing(&AppDelegate::refreshStatusBarTitle)));
    observers_.push_back(
        broadcaster.observe<FloatingPanelClicked>(doing(&AppDelegate::floatingPanelClicked)));
}

void AppDelegate::later(Work work) {
    with_.mainLoop.post([self = std::weak_ptr(self_), work] {
        if (const auto alive = self.lock()) ((*alive)->*work)();
    });
}

void AppDelegate::applyLayoutChange() {
    panel_->resize(panelSize());
    refreshStatusBarTitle();
}

void AppDelegate::floatingPanelClicked() {
    if (with_.statistics.isVisible()) {
        with_.statistics.close();
        return;
    }
    flushAllStores();
    with_.statistics.showWindow();
}

void AppDelegate::handleStatusClick(StatusItem::Click click) {
    if (click == StatusItem::Click::left && !with_.statistics.isVisible()) {
        flushAllStores();
        with_.statistics.showWindow();
    } else {
        openMenu();
    }
}

void AppDelegate::openMenu() {
    statusItem_->popUpMenu(with_.menu());
}

void AppDelegate::refreshStatusBarTitle() {
    statusItem_->setTitle(with_.title());
}

void AppDelegate::refreshTimerFired() {
    refreshStatusBarTitle();
    setDayUnderCurrentKey();
    with_.notifications.checkDailyMilestones();
    with_.categories.flushRegistered();
    sayOnceThatThereIsNoTray();
}

void AppDelegate::setDayUnderCurrentKey() {
    with_.counters.daily.set(with_.engine.todaySeconds(), with_.counters.daily.today());
}

void AppDelegate::sayOnceThatThereIsNoTray() {
    if (secondsWithoutTray_ > trayPatience) return;
    secondsWithoutTray_ = statusItem_->isShown() ? 0 : secondsWithoutTray_ + 1;
    if (secondsWithoutTray_ > trayPatience) {
        with_.surfaces.showHint(
            "No hay bandeja del sistema: el menú se abre con el botón derecho sobre el reloj.");
    }
}

PanelSize AppDelegate::panelSize() const {
    const auto& base = with_.theme.active().size;
    const auto scale = with_.settings.sizeScale();
    return {base.width * scale, base.height * scale};
}

}  // namespace tidewatch
