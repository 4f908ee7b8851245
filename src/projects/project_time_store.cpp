#include "projects/project_time_store.h"

#include <algorithm>
#include <array>
#include <functional>
#include <string_view>

namespace tidewatch {
namespace {

constexpr CounterFormat projectTimeFormat{"project_time.json", 3,
                                          "Tidewatch: failed to flush project time store: "};

}  // namespace

ProjectTimeStore::ProjectTimeStore(platform::FileSystem& files, platform::Log& log,
                                   platform::FrontmostApplication& frontmost)
    : counters_(files, log, frontmost, projectTimeFormat) {}

void ProjectTimeStore::incrementCurrentApp(const DayKey& day, const Uuid& project) {
    const auto projectText = project.text();
    counters_.incrementCurrentApp(std::array<std::string_view, 2>{day.text(), projectText});
}

std::vector<AppSeconds> ProjectTimeStore::aggregate(std::span<const DayKey> days, const Uuid& project) const {
    const auto projectText = project.text();
    auto result = counters_.aggregate(days, std::array<std::string_view, 1>{projectText});
    std::ranges::sort(result, {}, &AppSeconds::app);
    std::ranges::stable_sort(result, std::ranges::greater(), &AppSeconds::seconds);
    return result;
}

Seconds ProjectTimeStore::totalSeconds(std::span<const DayKey> days, const Uuid& project) const {
    const auto projectText = project.text();
    Seconds sum;
    for (const auto& day : days) {
        sum += counters_.seconds(std::array<std::string_view, 2>{day.text(), projectText});
    }
    return sum;
}

Seconds ProjectTimeStore::taggedSeconds(const DayKey& day) const {
    return counters_.seconds(std::array<std::string_view, 1>{day.text()});
}

std::vector<DayKey> ProjectTimeStore::allDayKeys(const Uuid& project) const {
    const auto projectText = project.text();
    return counters_.days(std::array<std::string_view, 1>{projectText});
}

}  // namespace tidewatch
