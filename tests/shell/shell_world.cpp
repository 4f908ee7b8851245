#include "shell/shell_world.h"

#include "core/data_directory.h"

namespace tidewatch {

namespace {

using namespace std::chrono;

constexpr Instant start = sys_days(year(2026) / 1 / 15) + hours(9);

}  // namespace

ShellWorld::ShellWorld() : machine_(start, [](const std::string& complaint) { ADD_FAILURE() << complaint; }) {
    machine_.workspace.setFrontmost(AppId("org.example.Editor"));
}

void ShellWorld::launch(StatisticsWindow* statistics) {
    program_.reset();
    program_ =
        std::make_unique<Program>(machine_.platform, surfaces_, statistics, [this] { terminated_ = true; });
    program_->delegate.applicationDidFinishLaunching();
}

std::string ShellWorld::file(const std::string& name) const {
    return machine_.files.content(dataDirectory(machine_.files) + "/" + name).value_or("(none)");
}

ShellWorld::Program::Program(const platform::Platform& platform, Surfaces& surfaces,
                             StatisticsWindow* statistics, std::function<void()> terminate)
    : settings(platform.preferences),
      dayRule(platform.clock, settings),
      idleMonitor(platform.inputActivity),
      days(platform.files, platform.log, dayRule),
      apps(platform.files, platform.log, platform.workspace),
      keys(platform.clock, settings, dayRule),
      hours(platform.files, platform.log, platform.workspace),
      minutes(platform.files, platform.log, platform.workspace),
      engine(platform.clock, platform.mainLoop, settings, idleMonitor, keys, {days, apps, hours, minutes},
             TickListeners{}),
      theme(themes, settings, broadcaster),
      delegate({
          .platform = platform,
          .broadcaster = broadcaster,
          .settings = settings,
          .days = days,
          .apps = apps,
          .engine = engine,
          .themes = themes,
          .theme = theme,
          .surfaces = surfaces,
          .statistics = statistics,
          .terminate = std::move(terminate),
      }) {}

}  // namespace tidewatch
