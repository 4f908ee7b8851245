#include "core/app_usage_store.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "core/frontmost_rule.h"

namespace tidewatch {
namespace {

constexpr StoreFormat appsFormat{"apps.json", 2, "Tidewatch: failed to flush app usage store: "};

// One slot an application that the record knows; those of no day given stay empty.
using Sums = std::vector<std::optional<Seconds>>;

void addDay(const CounterRecord& record, const DayKey& day, Sums& sums) {
    const auto found = record.find(0, record.top(), day.text());
    if (!found) return;
    const auto apps = record.children(0, *found);
    for (auto app = apps.begin; app < apps.end; ++app) {
        auto& sum = sums[record.nameId(1, app)];
        sum = sum.value_or(Seconds()) + record.seconds(app);
    }
}

}  // namespace

AppUsageStore::AppUsageStore(platform::FileSystem& files, platform::Log& log,
                             platform::FrontmostApplication& frontmost)
    : frontmost_(frontmost), frame_(files, log, appsFormat) {}

void AppUsageStore::incrementCurrentApp(const DayKey& day) {
    if (const auto app = bookableApplication(frontmost_)) incrementApp(*app, day);
}

void AppUsageStore::incrementApp(const AppId& app, const DayKey& day) {
    const std::array<std::string_view, 2> path{day.text(), app.text()};
    frame_.change([&](CounterRecord& record) { record.add(path, Seconds(1)); });
}

std::vector<AppSeconds> AppUsageStore::aggregate(std::span<const DayKey> days) const {
    auto result = frame_.read([&](const CounterRecord& record) {
        Sums sums(record.nameCount());
        for (const auto& day : days) addDay(record, day, sums);
        std::vector<AppSeconds> apps;
        for (std::uint32_t name = 0; name < sums.size(); ++name) {
            if (sums[name]) apps.push_back({AppId(std::string(record.name(name))), *sums[name]});
        }
        return apps;
    });
    std::ranges::stable_sort(result, std::ranges::greater(), &AppSeconds::seconds);
    return result;
}

std::vector<DayKey> AppUsageStore::allDayKeys() const {
    return frame_.read([](const CounterRecord& record) {
        std::vector<DayKey> days;
        days.reserve(record.top().size());
        for (auto day = record.top().begin; day < record.top().end; ++day) {
            days.emplace_back(std::string(record.text(0, day)));
        }
        return days;
    });
}

}  // namespace tidewatch
