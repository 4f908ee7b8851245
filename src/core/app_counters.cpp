#include "core/usage_frame.h"

#include <array>

#include "core/frontmost_rule.h"

namespace tidewatch {
namespace {

CounterRecord::Range appsOf(const CounterRecord& record, std::string_view key) {
    const auto found = record.find(0, record.top(), key);
    return found ? record.children(0, *found) : CounterRecord::Range();
}

}  // namespace

UsageFrame::UsageFrame(platform::FileSystem& files, platform::Log& log,
                       platform::FrontmostApplication& frontmost, const StoreFormat& format)
    : frontmost_(frontmost), frame_(files, log, format) {}

void UsageFrame::incrementCurrentApp(std::string_view key) {
    if (const auto app = bookableApplication(frontmost_)) incrementApp(*app, key);
}

void UsageFrame::incrementApp(const AppId& app, std::string_view key) {
    const std::array<std::string_view, 2> path{key, app.text()};
    frame_.change([&](CounterRecord& record) { record.add(path, Seconds(1)); });
}

std::vector<AppSeconds> UsageFrame::entries(std::string_view key) const {
    return frame_.read([&](const CounterRecord& record) {
        std::vector<AppSeconds> result;
        const auto apps = appsOf(record, key);
        result.reserve(apps.size());
        for (auto app = apps.begin; app < apps.end; ++app) {
            result.push_back({AppId(std::string(record.text(1, app))), record.seconds(app)});
        }
        return result;
    });
}

Seconds UsageFrame::seconds(std::string_view key) const {
    return frame_.read([&](const CounterRecord& record) {
        Seconds sum;
        const auto apps = appsOf(record, key);
        for (auto app = apps.begin; app < apps.end; ++app) sum += record.seconds(app);
        return sum;
    });
}

UsageSnapshot UsageFrame::snapshot() const {
    return UsageSnapshot(frame_.read([](const CounterRecord& record) { return record; }));
}

}  // namespace tidewatch
