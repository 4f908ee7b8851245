#include "app/program.h"

#include <array>

#include "shell/status_menu.h"

namespace tidewatch {

Program::Program(const platform::Platform& platform, Services& services, const Screen& screen)
    : platform_(platform),
      services_(services),
      exports_({
          .engine = services.engine,
          .days = services.days,
          .apps = services.apps,
          .projects = services.projects,
          .projectTime = services.projectTime,
          .categories = services.categories,
          .appInfo = services.appInfo,
          .files = platform.files,
          .desktop = platform.desktop,
          .dialogs = screen.surfaces.dialogs(),
          .generateReport = screen.generateReport,
      }),
      projectCommands_(services.projects, screen.surfaces.dialogs()),
      delegate_({
          .mainLoop = platform.mainLoop,
          .screens = platform.screens,
          .olderNotifications = platform.notifications,
          .settings = services.settings,
          .broadcaster = services.broadcaster,
          .engine = services.engine,
          .counters = services.counters(),
          .projectTime = services.projectTime,
          .categories = services.categories,
          .notifications = services.notifications,
          .theme = services.theme,
          .surfaces = screen.surfaces,
          .statistics = screen.statistics,
          .title = [this] { return statusTitle(); },
          .menu = [this] { return statusMenu(); },
      }),
      commands_({
          .settings = services.settings,
          .broadcaster = services.broadcaster,
          .engine = services.engine,
          .days = services.days,
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
    const std::array today = {services_.days.today()};
    return tidewatch::statusTitle(services_.scorer.compute(today), services_.projects.activeProject());
}

MenuRows Program::statusMenu() {
    return buildStatusMenu({
        .settings = services_.settings,
        .engine = services_.engine,
        .days = services_.days,
        .scorer = services_.scorer,
        .projects = services_.projects,
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
