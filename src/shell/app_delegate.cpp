#include "shell/app_delegate.h"

#include <array>
#include <chrono>
#include <utility>

#include "platform/api/main_loop.h"
#include "platform/api/user_notifications.h"
#include "shell/status_menu.h"

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
    panel_ = std::make_unique<FloatingPanel>(*window_, with_.services.settings, with_.platform.screens,
                                             with_.services.broadcaster);
    connectPanel();
    if (with_.services.settings.windowVisible()) panel_->orderFrontRegardless();
    statusItem_ = with_.surfaces.makeStatusItem();
    refreshStatusBarTitle();
    makeCommands();
    serveOlderNotifications();
    statusItem_->onClick([this](StatusItem::Click click) { handleStatusClick(click); });
    observeBroadcasts();
    with_.services.engine.start();
    with_.services.notifications.requestAuthorization();
    // Posted, as the engine posts its tick: each second's tick has run before.
    menuRefreshTimer_ =
        with_.platform.mainLoop.repeat(std::chrono::seconds(1), platform::TimerMode::defaultOnly,
                                       [this] { later(&AppDelegate::refreshTimerFired); });
}

void AppDelegate::applicationWillTerminate() {
    with_.services.engine.stop();
    with_.services.categories.flushRegistered();
}

void AppDelegate::applicationShouldHandleReopen() {
    setDayUnderCurrentKey();
    with_.services.days.flush();
    with_.services.apps.flush();
    with_.services.hours.flush();
    with_.statistics.showWindow();
}

void AppDelegate::flushAllStores() {
    auto& services = with_.services;
    setDayUnderCurrentKey();
    services.days.flush();
    services.apps.flush();
    services.hours.flush();
    services.minutes.flush();
    services.projectTime.flush();
}

void AppDelegate::connectPanel() {
    window_->setGestures({
        .mouseDown = [this](platform::Point position) { panel_->mouseDown(position); },
        .mouseDragged = [this](platform::Point position) { panel_->mouseDragged(position); },
        .mouseUp = [this](platform::Point position) { panel_->mouseUp(position); },
        .menuRequested = [this] { openMenu(); },
    });
}

void AppDelegate::makeCommands() {
    commands_ = std::make_unique<StatusCommands>(StatusCommands::Targets{
        .services = with_.services,
        .theme = with_.theme,
        .panel = *panel_,
        .desktop = with_.platform.desktop,
        .loginItem = with_.platform.loginItem,
        .dialogs = with_.surfaces.dialogs(),
        .statistics = with_.statistics,
        .refreshStatusBarTitle = [this] { refreshStatusBarTitle(); },
        .terminate = with_.terminate,
    });
    projectCommands_ = std::make_unique<ProjectCommands>(with_.services.projects, with_.surfaces.dialogs());
}

void AppDelegate::serveOlderNotifications() {
    with_.platform.notifications.setOlderService([this](const platform::UserNotification& message) {
        statusItem_->showMessage(message.title, message.body);
    });
}

void AppDelegate::observeBroadcasts() {
    auto& broadcaster = with_.services.broadcaster;
    const auto doing = [this](Work work) { return [this, work](const auto&) { later(work); }; };
    observers_.push_back(broadcaster.observe<ThemeChanged>(doing(&AppDelegate::applyLayoutChange)));
    observers_.push_back(broadcaster.observe<SizeChanged>(doing(&AppDelegate::applyLayoutChange)));
    observers_.push_back(broadcaster.observe<ProjectsChanged>(doing(&AppDelegate::refreshStatusBarTitle)));
    observers_.push_back(
        broadcaster.observe<FloatingPanelClicked>(doing(&AppDelegate::floatingPanelClicked)));
}

void AppDelegate::later(Work work) {
    with_.platform.mainLoop.post([self = std::weak_ptr(self_), work] {
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
    statusItem_->popUpMenu(buildStatusMenu({
        .services = with_.services,
        .themes = with_.themes,
        .theme = with_.theme,
        .inputActivity = with_.platform.inputActivity,
        .loginItem = with_.platform.loginItem,
        .commands = *commands_,
        .projectCommands = *projectCommands_,
        .exportCommands = with_.exports,
    }));
}

void AppDelegate::refreshStatusBarTitle() {
    const std::array today = {with_.services.days.today()};
    statusItem_->setTitle(
        statusTitle(with_.services.scorer.compute(today), with_.services.projects.activeProject()));
}

void AppDelegate::refreshTimerFired() {
    refreshStatusBarTitle();
    setDayUnderCurrentKey();
    with_.services.notifications.checkDailyMilestones();
    with_.services.categories.flushRegistered();
    sayOnceThatThereIsNoTray();
}

void AppDelegate::setDayUnderCurrentKey() {
    with_.services.days.set(with_.services.engine.todaySeconds(), with_.services.days.today());
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
    const auto scale = with_.services.settings.sizeScale();
    return {base.width * scale, base.height * scale};
}

}  // namespace tidewatch
