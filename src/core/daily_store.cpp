#include "core/daily_store.h"

#include <array>
#include <string_view>

namespace tidewatch {
namespace {

constexpr CounterFormat dailyFormat{"today.json", 1, "Tidewatch: failed to flush daily store: "};

}  // namespace

DailyStore::DailyStore(platform::FileSystem& files, platform::Log& log, const DayRule& dayRule)
    : dayRule_(dayRule), file_(files, log, dailyFormat) {}

Seconds DailyStore::seconds(const DayKey& day) const {
    const std::array<std::string_view, 1> path{day.text()};
    return file_.read([&](const CounterRecord& record) { return record.seconds(path); });
}

void DailyStore::set(Seconds seconds, const DayKey& day) {
    const std::array<std::string_view, 1> path{day.text()};
    file_.change([&](CounterRecord& record) { return record.set(path, seconds); });
}

std::vector<DaySeconds> DailyStore::allDays() const {
    return file_.read([](const CounterRecord& record) {
        std::vector<DaySeconds> days;
        days.reserve(record.top().size());
        for (auto day = record.top().begin; day < record.top().end; ++day) {
            days.push_back({DayKey(std::string(record.text(0, day))), record.seconds(day)});
        }
        return days;
    });
}

}  // namespace tidewatch
