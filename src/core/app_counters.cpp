#include "core/app_counters.h"

#include <array>

#include "core/frontmost_rule.h"

namespace tidewatch {
namespace {

// Adjacent nodes of one level.
struct Nodes {
    std::size_t level;
    CounterRecord::Range range;
};

// The nodes directly under `keys`, starting at these nodes; nullopt for unknown keys.
std::optional<Nodes> nodesUnder(const CounterRecord& record, Nodes nodes, AppCounters::Keys keys) {
    for (const auto key : keys) {
        const auto found = record.find(nodes.level, nodes.range, key);
        if (!found) return std::nullopt;
        nodes = {nodes.level + 1, record.children(nodes.level, *found)};
    }
    return nodes;
}

Nodes firstLevel(const CounterRecord& record) {
    return {0, record.top()};
}

// The counters under the nodes, also adjacent.
CounterRecord::Range leavesUnder(const CounterRecord& record, Nodes nodes) {
    for (; nodes.level + 1 < record.depth() && nodes.range.size() > 0; ++nodes.level) {
        nodes.range = {record.children(nodes.level, nodes.range.begin).begin,
                       record.children(nodes.level, nodes.range.end - 1).end};
    }
    return nodes.range;
}

AppId appAt(const CounterRecord& record, CounterRecord::Index leaf) {
    return AppId(std::string(record.text(record.depth() - 1, leaf)));
}

}  // namespace

AppCounters::AppCounters(platform::FileSystem& files, platform::Log& log,
                         platform::FrontmostApplication& frontmost, const CounterFormat& format)
    : frontmost_(frontmost), file_(files, log, format) {}

void AppCounters::incrementCurrentApp(Keys keys) {
    if (const auto app = bookableApplication(frontmost_)) incrementApp(*app, keys);
}

void AppCounters::incrementApp(const AppId& app, Keys keys) {
    std::vector<std::string_view> path(keys.begin(), keys.end());
    path.push_back(app.text());
    file_.change([&](CounterRecord& record) {
        record.add(path, Seconds(1));
        return true;
    });
}

std::vector<AppSeconds> AppCounters::entries(Keys keys) const {
    return file_.read([&](const CounterRecord& record) {
        std::vector<AppSeconds> result;
        const auto apps = nodesUnder(record, firstLevel(record), keys);
        if (!apps) return result;
        result.reserve(apps->range.size());
        for (auto app = apps->range.begin; app < apps->range.end; ++app) {
            result.push_back({appAt(record, app), record.seconds(app)});
        }
        return result;
    });
}

Seconds AppCounters::seconds(Keys keys) const {
    return file_.read([&](const CounterRecord& record) {
        Seconds sum;
        const auto nodes = nodesUnder(record, firstLevel(record), keys);
        const auto leaves = nodes ? leavesUnder(record, *nodes) : CounterRecord::Range();
        for (auto leaf = leaves.begin; leaf < leaves.end; ++leaf) sum += record.seconds(leaf);
        return sum;
    });
}

std::vector<AppSeconds> AppCounters::aggregate(std::span<const DayKey> days, Keys below) const {
    return file_.read([&](const CounterRecord& record) {
        const auto appLevel = record.depth() - 1;
        // One slot per interned name; names without seconds on these days stay 0.
        std::vector<std::optional<Seconds>> sums(record.nameCount());
        for (const auto& day : days) {
            const std::array<std::string_view, 1> first{day.text()};
            const auto onDay = nodesUnder(record, firstLevel(record), first);
            const auto apps = onDay ? nodesUnder(record, *onDay, below) : std::nullopt;
            if (!apps) continue;
            for (auto app = apps->range.begin; app < apps->range.end; ++app) {
                auto& sum = sums[record.nameId(appLevel, app)];
                sum = sum.value_or(Seconds()) + record.seconds(app);
            }
        }
        std::vector<AppSeconds> apps;
        for (std::uint32_t name = 0; name < sums.size(); ++name) {
            if (sums[name]) apps.push_back({AppId(std::string(record.name(name))), *sums[name]});
        }
        return apps;
    });
}

std::vector<DayKey> AppCounters::days(Keys below) const {
    return file_.read([&](const CounterRecord& record) {
        std::vector<DayKey> days;
        for (auto day = record.top().begin; day < record.top().end; ++day) {
            if (nodesUnder(record, {1, record.children(0, day)}, below)) {
                days.emplace_back(std::string(record.text(0, day)));
            }
        }
        return days;
    });
}

UsageSnapshot AppCounters::snapshot() const {
    return UsageSnapshot(file_.read([](const CounterRecord& record) { return record; }));
}

}  // namespace tidewatch
