#include "projects/project_time_store.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <string_view>
#include <utility>

#include "core/frontmost_rule.h"

namespace tidewatch {
namespace {

constexpr StoreFormat projectTimeFormat{"project_time.json", 3,
                                        "Tidewatch: failed to flush project time store: "};

constexpr std::size_t dayLevel = 0;
constexpr std::size_t projectLevel = 1;
constexpr std::size_t appLevel = 2;

CounterRecord::Range appsOf(const CounterRecord& record, CounterRecord::Index day, std::string_view project) {
    const auto found = record.find(projectLevel, record.children(dayLevel, day), project);
    return found ? record.children(projectLevel, *found) : CounterRecord::Range();
}

// Calls `visit(leaf)` for each application of the project on each of the days.
template <class Visitor>
void forEachApp(const CounterRecord& record, std::span<const DayKey> days, const Uuid& project,
                Visitor&& visit) {
    const auto projectText = project.text();
    for (const auto& dayKey : days) {
        const auto day = record.find(dayLevel, record.top(), dayKey.text());
        if (!day) continue;
        const auto apps = appsOf(record, *day, projectText);
        for (auto app = apps.begin; app < apps.end; ++app) visit(app);
    }
}

}  // namespace

ProjectTimeStore::ProjectTimeStore(platform::FileSystem& files, platform::Log& log,
                                   platform::FrontmostApplication& frontmost)
    : frontmost_(frontmost), frame_(files, log, projectTimeFormat) {}

void ProjectTimeStore::incrementCurrentApp(const DayKey& day, const Uuid& project) {
    const auto app = bookableApplication(frontmost_);
    if (!app) return;
    const auto projectText = project.text();
    const std::array<std::string_view, 3> path{day.text(), projectText, app->text()};
    frame_.change([&](CounterRecord& record) { record.add(path, Seconds(1)); });
}

std::vector<AppSeconds> ProjectTimeStore::aggregate(std::span<const DayKey> days, const Uuid& project) const {
    auto result = frame_.read([&](const CounterRecord& record) {
        std::map<std::string_view, Seconds> sums;
        forEachApp(record, days, project, [&](CounterRecord::Index app) {
            sums[record.text(appLevel, app)] += record.seconds(app);
        });
        std::vector<AppSeconds> apps;
        apps.reserve(sums.size());
        for (const auto& [app, seconds] : sums) apps.push_back({AppId(std::string(app)), seconds});
        return apps;
    });
    std::ranges::stable_sort(result, std::ranges::greater(), &AppSeconds::seconds);
    return result;
}

Seconds ProjectTimeStore::totalSeconds(std::span<const DayKey> days, const Uuid& project) const {
    return frame_.read([&](const CounterRecord& record) {
        Seconds sum;
        forEachApp(record, days, project, [&](CounterRecord::Index app) { sum += record.seconds(app); });
        return sum;
    });
}

Seconds ProjectTimeStore::taggedSeconds(const DayKey& day) const {
    return frame_.read([&](const CounterRecord& record) {
        Seconds sum;
        const auto found = record.find(dayLevel, record.top(), day.text());
        if (!found) return sum;
        const auto projects = record.children(dayLevel, *found);
        for (auto project = projects.begin; project < projects.end; ++project) {
            const auto apps = record.children(projectLevel, project);
            for (auto app = apps.begin; app < apps.end; ++app) sum += record.seconds(app);
        }
        return sum;
    });
}

std::vector<DayKey> ProjectTimeStore::allDayKeys(const Uuid& project) const {
    const auto projectText = project.text();
    return frame_.read([&](const CounterRecord& record) {
        std::vector<DayKey> days;
        for (auto day = record.top().begin; day < record.top().end; ++day) {
            if (record.find(projectLevel, record.children(dayLevel, day), projectText)) {
                days.emplace_back(std::string(record.text(dayLevel, day)));
            }
        }
        return days;
    });
}

}  // namespace tidewatch
