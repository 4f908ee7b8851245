#include "tools/demo/demo_home.h"

#include <fmt/format.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string_view>

#include "analysis/goal_settings_json.h"
#include "core/counter_json.h"
#include "shell/widgets/widget_state.h"
#include "tools/demo/demo_applications.h"

namespace tidewatch::demo {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view settings =
    "[General]\n"
    "activeThemeID=ochre\n"
    "notif-welcome=true\n"
    "windowVisible=true\n";

/// All of them, in columns at the left of the screen.
WidgetStates widgets() {
    constexpr double margin = 32;
    constexpr double gap = 20;
    constexpr double column = 226 + gap;
    constexpr std::array columns{
        std::array{WidgetKind::productivity, WidgetKind::system, WidgetKind::goals},
        std::array{WidgetKind::streak, WidgetKind::topApps, WidgetKind::speed},
        std::array{WidgetKind::project, WidgetKind::arcade, WidgetKind::arcade},
    };
    WidgetStates states;
    double x = margin;
    for (const auto& kinds : columns) {
        double y = margin;
        for (const auto kind : kinds) {
            if (!states.try_emplace(kind, WidgetState{.visible = true, .x = x, .y = y}).second) continue;
            y += defaultSize(kind).height + gap;
        }
        x += column;
    }
    return states;
}

void write(const fs::path& path, std::string_view content) {
    fs::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << content;
    if (!file.flush()) throw std::runtime_error("cannot write " + path.string());
}

void write(const fs::path& path, const CounterRecord& record) {
    write(path, serializeCounters(record));
}

std::string desktopEntry(const DemoApplication& app, const std::string& iconFolder) {
    return fmt::format(
        "[Desktop Entry]\nType=Application\nName={0}\nName[es]={0}\nExec=true\nIcon={1}/{2}.png\n"
        "Categories={3}\n",
        app.name, iconFolder, app.id, app.categories);
}

}  // namespace

void writeDemoHome(const DemoRecord& record, const std::string& home, const std::string& iconFolder) {
    const auto data = fs::path(home) / ".tidewatch";
    write(data / "today.json", record.today);
    write(data / "apps.json", record.apps);
    write(data / "hours.json", record.hours);
    write(data / "minutes.json", record.minutes);
    write(data / "project_time.json", record.projectTime);
    write(data / "projects.json", serializeProjects(record.projects));
    write(data / "categories.json", serializeCategoryOverrides(record.overrides));
    write(data / "goals.json", serializeGoalSettings(record.goals).value());
    write(data / "widgets.json", serializeWidgetStates(widgets()));
    write(fs::path(home) / ".config/brightlooms/tidewatch.conf", settings);
    for (const auto& app : demoApplications()) {
        write(fs::path(home) / ".local/share/applications" / (std::string(app.id) + ".desktop"),
              desktopEntry(app, iconFolder));
    }
}

}  // namespace tidewatch::demo
