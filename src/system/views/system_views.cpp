#include "system/views/system_views.h"

#include <string_view>
#include <utility>

#include "analysis/dashboard_model.h"
#include "ui/texts/qt_text.h"

namespace tidewatch {
namespace {

constexpr double sidebarWidth = 220;

Pane tab(DashboardTab tab, const char* view, QObject* presenter) {
    const auto name = text(rawValue(tab));
    return {.id = name, .title = name, .view = viewUrl("Tidewatch.System", view), .presenter = presenter};
}

}  // namespace

SystemViews::SystemViews(const platform::Clock& clock, MachineOverview& machine, SystemCommands commands,
                         const std::vector<Pane>& belowOverview)
    : commands_(std::move(commands)),
      watch_(machine.monitor, machine.speedTester),
      system_(machine.monitor, machine.speedTester, watch_, machine.desktop),
      disk_({
          .clock = clock,
          .analyzer = machine.analyzer,
          .desktop = machine.desktop,
          .commands = commands_,
      }),
      sidebar_({
          .monitor = machine.monitor,
          .watch = watch_,
          .speed = machine.speedTester,
          .ejector = machine.ejector,
          .running = machine.running,
          .desktop = machine.desktop,
          .commands = commands_,
          .belowOverview = belowOverview,
      }) {}

std::vector<Pane> SystemViews::tabs() {
    return {tab(DashboardTab::system, "SystemTab", &system_), tab(DashboardTab::disk, "DiskTab", &disk_)};
}

Pane SystemViews::sidebar() {
    return {.id = "system-sidebar",
            .title = sidebar_.accessibleText(),
            .view = viewUrl("Tidewatch.System", "ExpandableSysSidebar"),
            .presenter = &sidebar_,
            .width = sidebarWidth};
}

}  // namespace tidewatch
