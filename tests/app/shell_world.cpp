#include "app/shell_world.h"

#include "core/data_directory.h"

namespace tidewatch {

namespace {

using namespace std::chrono;

constexpr Instant start = sys_days(year(2026) / 1 / 15) + hours(9);

}  // namespace

ShellWorld::ShellWorld() : machine_(start, [](const std::string& complaint) { ADD_FAILURE() << complaint; }) {
    machine_.frontmost.set(AppId("org.example.Editor"));
}

void ShellWorld::launch() {
    program_.reset();
    program_ = std::make_unique<Program>(*this);
    program_->delegate.applicationDidFinishLaunching();
}

MenuRows ShellWorld::menu() {
    if (!program_) launch();
    surfaces_.statusItem().click(StatusItem::Click::right);
    return surfaces_.statusItem().menus().back();
}

bool ShellWorld::choose(const std::string& title) {
    const bool chosen = chooseIn(menu(), title);
    machine_.mainLoop.run();
    return chosen;
}

bool ShellWorld::chooseIn(const MenuRows& rows, const std::string& title) {
    for (const auto& row : rows) {
        if (row.title == title && row.action) {
            row.action();
            return true;
        }
        if (chooseIn(row.children, title)) return true;
    }
    return false;
}

std::string ShellWorld::file(const std::string& name) const {
    return machine_.files.content(dataDirectory(machine_.files) + "/" + name).value_or("(none)");
}

ShellWorld::Program::Program(ShellWorld& world)
    : services(world.platform()),
      theme(themes, services.settings, services.broadcaster),
      exports({
          .services = services,
          .files = world.machine_.files,
          .desktop = world.machine_.desktop,
          .dialogs = world.surfaces_.dialogs(),
          .generateReport =
              [&world](const std::string& path) {
                  world.reports_.push_back(path);
                  return world.reportsSucceed_;
              },
      }),
      delegate({
          .platform = world.platform(),
          .services = services,
          .themes = themes,
          .theme = theme,
          .surfaces = world.surfaces_,
          .statistics = world.statistics_,
          .exports = exports,
          .terminate = [&world] { world.terminated_ = true; },
      }) {}

}  // namespace tidewatch
