#include "shell/app_delegate.h"

#include <chrono>
#include <utility>

#include "platform/api/clock.h"
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
    panel_ =
        std::make_unique<FloatingPanel>(*window_, with_.settings, with_.platform.screens, with_.broadcaster);
    connectPanel();
    if (with_.settings.windowVisible()) panel_->orderFrontRegardless();
    statusItem_ = with_.surfaces.makeStatusItem();
    refreshStatusBarTitle();
    makeCommands();
    statusItem_->onClick([this](StatusItem::Click click) { handleStatusClick(click); });
    observeBroadcasts();
    with_.engine.start();
    menuRefreshTimer_ = with_.platform.mainLoop.repeat(
        std::chrono::seconds(1), platform::TimerMode::defaultOnly, [this] { refreshTimerFired(); });
}

void AppDelegate::applicationWillTerminate() {
    with_.engine.stop();
}

void AppDelegate::applicationShouldHandleReopen() {
    setDayUnderCurrentKey();
    with_.days.flush();
    with_.apps.flush();
    if (with_.statistics != nullptr) {
        with_.statistics->showWindow();
    } else {
        panel_->orderFrontRegardless();
        with_.settings.setWindowVisible(true);
    }
}

void AppDelegate::flushAllStores() {
    setDayUnderCurrentKey();
    with_.days.flush();
    with_.apps.flush();
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
        .engine = with_.engine,
        .days = with_.days,
        .settings = with_.settings,
        .theme = with_.theme,
        .broadcaster = with_.broadcaster,
        .panel = *panel_,
        .workspace = with_.platform.workspace,
        .loginItem = with_.platform.loginItem,
        .dialogs = with_.surfaces.dialogs(),
        .refreshStatusBarTitle = [this] { refreshStatusBarTitle(); },
        .terminate = with_.terminate,
    });
}

void AppDelegate::observeBroadcasts() {
    const auto later = [this](void (AppDelegate::*work)()) {
        return [this, work](const auto&) {
            with_.platform.mainLoop.post([self = std::weak_ptr(self_), work] {
                if (const auto alive = self.lock()) ((*alive)->*work)();
            });
        };
    };
    observers_.push_back(with_.broadcaster.observe<ThemeChanged>(later(&AppDelegate::applyLayoutChange)));
    observers_.push_back(with_.broadcaster.observe<SizeChanged>(later(&AppDelegate::applyLayoutChange)));
    observers_.push_back(
        with_.broadcaster.observe<ProjectsChanged>(later(&AppDelegate::refreshStatusBarTitle)));
    observers_.push_back(
        with_.broadcaster.observe<FloatingPanelClicked>(later(&AppDelegate::floatingPanelClicked)));
}

void AppDelegate::applyLayoutChange() {
    panel_->resize(panelSize());
    refreshStatusBarTitle();
}

void AppDelegate::floatingPanelClicked() {
    if (with_.statistics != nullptr && with_.statistics->isVisible()) {
        with_.statistics->close();
        return;
    }
    flushAllStores();
    if (with_.statistics != nullptr) with_.statistics->showWindow();
}

void AppDelegate::handleStatusClick(StatusItem::Click click) {
    const bool canShowStatistics = with_.statistics != nullptr && !with_.statistics->isVisible();
    if (click == StatusItem::Click::left && canShowStatistics) {
        flushAllStores();
        with_.statistics->showWindow();
    } else {
        openMenu();
    }
}

void AppDelegate::openMenu() {
    statusItem_->popUpMenu(buildStatusMenu({
        .engine = with_.engine,
        .settings = with_.settings,
        .themes = with_.themes,
        .theme = with_.theme,
        .inputActivity = with_.platform.inputActivity,
        .loginItem = with_.platform.loginItem,
        .commands = *commands_,
    }));
}

void AppDelegate::refreshStatusBarTitle() {
    // The dash stands for a day of which nothing can be said yet.
    statusItem_->setTitle({.figure = "—", .project = "", .mood = StatusTitle::Mood::none});
}

void AppDelegate::refreshTimerFired() {
    refreshStatusBarTitle();
    setDayUnderCurrentKey();
    sayOnceThatThereIsNoTray();
}

void AppDelegate::setDayUnderCurrentKey() {
    with_.days.set(with_.engine.todaySeconds(), with_.days.today());
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
