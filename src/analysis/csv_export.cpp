#include "analysis/csv_export.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>

#include "base/duration_format.h"

namespace tidewatch {
namespace {

constexpr std::string_view dayHeader = "bundle_id,app_name,category,tier,seconds,hms,percent\n";
constexpr std::string_view projectHeader = "date,bundle_id,app_name,category,tier,seconds,hms\n";

std::string escaped(std::string_view text) {
    if (text.find_first_of(",\"\n") == std::string_view::npos) return std::string(text);
    std::string quoted = "\"";
    for (const char character : text) {
        if (character == '"') quoted += '"';
        quoted += character;
    }
    return quoted + '"';
}

double percentOf(Seconds part, Seconds total) {
    if (total < Seconds(1)) return 0;
    return static_cast<double>(part.count()) / static_cast<double>(total.count()) * 100.0;
}

}  // namespace

CsvExport::CsvExport(const AppUsageStore& apps, const ProjectTimeStore& projectTime,
                     const CategoryStore& categories, const AppInfoResolver& appInfo)
    : apps_(apps), projectTime_(projectTime), categories_(categories), appInfo_(appInfo) {}

std::string CsvExport::day(const DayKey& day) const {
    const auto apps = apps_.aggregate({&day, 1});
    Seconds total;
    for (const auto& app : apps) total += app.seconds;
    std::string text(dayHeader);
    for (const auto& app : apps) {
        text += fmt::format("{},{:.2f}\n", applicationColumns(app), percentOf(app.seconds, total));
    }
    return text;
}

std::string CsvExport::fileName(const DayKey& day) {
    return "tidewatch-" + day.text() + ".csv";
}

std::string CsvExport::project(const Project& project) const {
    const auto days = projectTime_.allDayKeys(project.id);
    std::string text(projectHeader);
    for (const auto& day : days) {
        for (const auto& app : projectTime_.aggregate({&day, 1}, project.id)) {
            text += fmt::format("{},{}\n", day.text(), applicationColumns(app));
        }
    }
    const auto total = projectTime_.totalSeconds(days, project.id);
    text += fmt::format("\n# total,,,,,{},{}\n", total.count(), escaped(hms(total)));
    return text;
}

std::string CsvExport::fileName(const Project& project) {
    auto name = project.name;
    std::ranges::replace(name, '/', '-');
    return "tidewatch-" + name + ".csv";
}

std::string CsvExport::applicationColumns(const AppSeconds& app) const {
    const auto category = categories_.category(app.app);
    return fmt::format("{},{},{},{},{},{}", escaped(app.app.text()), escaped(appInfo_.info(app.app).name),
                       escaped(rawValue(category)), escaped(rawValue(categories_.tier(category))),
                       app.seconds.count(), escaped(hms(app.seconds)));
}

}  // namespace tidewatch
