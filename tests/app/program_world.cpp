#include "app/program_world.h"

#include "core/data_directory.h"

namespace tidewatch {

namespace {

using namespace std::chrono;

constexpr Instant start = sys_days(year(2026) / 1 / 15) + hours(9);

}  // namespace

ProgramWorld::ProgramWorld()
    : machine_(start, [](const std::string& complaint) { ADD_FAILURE() << complaint; }) {
    machine_.frontmost.set(AppId("org.example.Editor"));
    machine_.preferences.setBoolean("notif-welcome", true);
}

void ProgramWorld::launch() {
    program_.reset();
    program_ = std::make_unique<Run>(*this);
    program_->delegate.applicationDidFinishLaunching();
}

MenuRows ProgramWorld::menu() {
    if (!program_) launch();
    surfaces_.statusItem().click(StatusItem::Click::right);
    return surfaces_.statusItem().menus().back();
}

bool ProgramWorld::choose(const std::string& title) {
    const bool chosen = chooseIn(menu(), title);
    machine_.mainLoop.run();
    return chosen;
}

bool ProgramWorld::chooseIn(const MenuRows& rows, const std::string& title) {
    for (const auto& row : rows) {
        if (row.title == title && row.action) {
            row.action();
            return true;
        }
        if (chooseIn(row.children, title)) return true;
    }
    return false;
}

std::string ProgramWorld::file(const std::string& name) const {
    return machine_.files.content(dataDirectory(machine_.files) + "/" + name).value_or("(none)");
}

ProgramWorld::Run::Run(ProgramWorld& world)
    : services(world.platform()),
      program(world.platform(), services,
              {
                  .surfaces = world.surfaces_,
                  .statistics = world.statistics_,
                  .generateReport =
                      [&world](const std::string& path) {
                          world.reports_.push_back(path);
                          return world.reportsSucceed_;
                      },
                  .terminate = [&world] { world.terminated_ = true; },
              }) {}

}  // namespace tidewatch
