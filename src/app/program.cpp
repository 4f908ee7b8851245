#include "app/program.h"

#include <array>

#include "shell/menu_sections.h"
#include "shell/welcome.h"

namespace tidewatch {

Program::Program(const platform::Platform& platform, Services& services, const Screen& screen)
    : services_(services),
      exports_({
          .engine = services.engine,
          .days = services.counting.days,
          .apps = services.counting.apps,
          .projects = services.projects.store,
          .projectTime = services.projects.times,
          .categories = services.classification.categories,
          .appInfo = services.classification.appInfo,
          .files = platform.files,
          .desktop = platform.desktop,
          .dialogs = screen.surfaces.dialogs(),
          .generateReport = screen.generateReport,
      }),
      projectCommands_(services.projects.store, screen.surfaces.dialogs()),
      record_(services.engine, services.counting.stores(), services.projects.times,
              services.classification.categories),
      statusBar_({
          .surfaces = screen.surfaces,
          .notifications = platform.notifications,
          .title = [this] { return statusTitle(); },
          .menu = [this] { return buildStatusMenu(menu_); },
          .trayKnown = [&services](bool hasTray) { welcome(services.wellbeing.notifications, hasTray); },
          .trayMissing = [this] { clock_.hintAtMenu(); },
      }),
      clock_({
          .settings = services.counting.settings,
          .broadcaster = services.broadcaster,
          .screens = platform.screens,
          .theme = services.theme,
          .surfaces = screen.surfaces,
          .openMenu = [this] { statusBar_.openMenu(); },
          .hasTray = [this] { return statusBar_.isInTray(); },
      }),
      widgetDependencies_({
          .hub = services.widgets.hub,
          .mainLoop = platform.mainLoop,
          .broadcaster = services.broadcaster,
          .statistics = screen.statistics,
          .windows = {.store = services.widgets.store,
                      .broadcaster = services.broadcaster,
                      .screens = platform.screens,
                      .surfaces = screen.surfaces,
                      .openMenu = [this] { statusBar_.openMenu(); }},
      }),
      delegate_({
          .mainLoop = platform.mainLoop,
          .broadcaster = services.broadcaster,
          .engine = services.engine,
          .notifications = services.wellbeing.notifications,
          .record = record_,
          .surfaces = screen.surfaces,
          .clock = clock_,
          .statusBar = statusBar_,
          .statistics = screen.statistics,
          .widgets = [this]() -> WidgetManager& { return widgets(); },
      }),
      commands_({
          .settings = services.counting.settings,
          .broadcaster = services.broadcaster,
          .engine = services.engine,
          .days = services.counting.days,
          .theme = services.theme,
          .desktop = platform.desktop,
          .loginItem = platform.loginItem,
          .dialogs = screen.surfaces.dialogs(),
          .statistics = screen.statistics,
          .toggleVisible = [this] { clock_.toggleVisible(); },
          .refreshStatusBarTitle = [this] { statusBar_.refreshTitle(); },
          .terminate = screen.terminate,
      }),
      menu_(makeMenu(platform)) {}

StatusTitle Program::statusTitle() const {
    const std::array today = {services_.counting.days.today()};
    return tidewatch::statusTitle(services_.classification.scorer.compute(today),
                                  services_.projects.store.activeProject());
}

WidgetManager& Program::widgets() {
    if (!widgets_) widgets_.emplace(widgetDependencies_);
    return *widgets_;
}

MenuGroups Program::makeMenu(const platform::Platform& platform) {
    const auto& settings = services_.counting.settings;
    const auto& days = services_.counting.days;
    const auto& scorer = services_.classification.scorer;
    return {
        {scoreSection(days, scorer)},
        {countingSection(services_.engine, platform.inputActivity)},
        {tierSection(days, scorer)},
        {
            appearanceSection(services_.themes, services_.theme, settings, commands_),
            countingRuleSection(settings, commands_),
            projectSection(services_.projects.store, projectCommands_, exports_),
            widgetSection([this]() -> WidgetManager& { return widgets(); }),
            clockSection(settings, commands_),
        },
        {recordSection(commands_, exports_)},
        {loginSection(platform.loginItem, commands_)},
        {endSection(commands_)},
    };
}

}  // namespace tidewatch
