#include "app/program.h"

#include <array>

#include "shell/status_menu.h"

namespace tidewatch {

Program::Program(const platform::Platform& platform, Services& services, const Screen& screen)
    : platform_(platform),
      services_(services),
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
      delegate_({
          .mainLoop = platform.mainLoop,
          .screens = platform.screens,
          .olderNotifications = platform.notifications,
          .settings = services.counting.settings,
          .broadcaster = services.broadcaster,
          .engine = services.engine,
          .counters = services.counting.stores(),
          .projectTime = services.projects.times,
          .categories = services.classification.categories,
          .notifications = services.wellbeing.notifications,
          .theme = services.theme,
          .surfaces = screen.surfaces,
          .statistics = screen.statistics,
          .title = [this] { return statusTitle(); },
          .menu = [this] { return statusMenu(); },
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
          .toggleVisible = [this] { delegate_.toggleVisible(); },
          .refreshStatusBarTitle = [this] { delegate_.refreshStatusBarTitle(); },
          .terminate = screen.terminate,
      }) {}

StatusTitle Program::statusTitle() const {
    const std::array today = {services_.counting.days.today()};
    return tidewatch::statusTitle(services_.classification.scorer.compute(today),
                                  services_.projects.store.activeProject());
}

MenuRows Program::statusMenu() {
    return buildStatusMenu({
        .settings = services_.counting.settings,
        .engine = services_.engine,
        .days = services_.counting.days,
        .scorer = services_.classification.scorer,
        .projects = services_.projects.store,
        .themes = services_.themes,
        .theme = services_.theme,
        .inputActivity = platform_.inputActivity,
        .loginItem = platform_.loginItem,
        .commands = commands_,
        .projectCommands = projectCommands_,
        .exportCommands = exports_,
    });
}

}  // namespace tidewatch
