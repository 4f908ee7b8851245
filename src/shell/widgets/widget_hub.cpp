#include "shell/widgets/widget_hub.h"

#include <algorithm>
#include <array>
#include <chrono>

namespace tidewatch {

namespace {

constexpr std::int64_t ticksPerInsights = 8;

}  // namespace

WidgetHub::WidgetHub(const Dependencies& dependencies)
    : dependencies_(dependencies),
      insightsEngine_(dependencies.monitor.clock, dependencies.days, dependencies.hours, dependencies.minutes,
                      dependencies.categories),
      monitor_(dependencies.monitor, SystemMonitor::ProcessLists::none),
      speed_(dependencies.speed) {}

void WidgetHub::start() {
    if (timer_) return;
    // Posted, like the engine's tick, so that each second's tick has been booked before.
    timer_ = dependencies_.mainLoop.repeat(std::chrono::seconds(1), platform::TimerMode::common, [this] {
        dependencies_.mainLoop.post([self = std::weak_ptr(self_)] {
            if (const auto alive = self.lock()) (*alive)->advance();
        });
    });
}

void WidgetHub::stop() {
    timer_.reset();
}

void WidgetHub::advance() {
    ++tick_;
    changed.emit();
}

ProductivityScore WidgetHub::todayScore() const {
    const std::array today = {dependencies_.days.today()};
    return dependencies_.scorer.compute(today);
}

std::vector<AppEntry> WidgetHub::topApps(std::size_t limit) const {
    const std::array today = {dependencies_.days.today()};
    auto apps = dependencies_.apps.aggregate(today);
    apps.resize(std::min(apps.size(), limit));
    std::vector<AppEntry> entries;
    entries.reserve(apps.size());
    for (const auto& app : apps) {
        entries.push_back(appEntry(app, dependencies_.appInfo, dependencies_.categories));
    }
    return entries;
}

std::array<GoalProgress, 4> WidgetHub::goals() const {
    return dependencies_.goals.evaluate();
}

const Insights& WidgetHub::insights() {
    if (!insightsTick_ || tick_ - *insightsTick_ >= ticksPerInsights) {
        cachedInsights_ = insightsEngine_.compute(InsightsRange::week);
        insightsTick_ = tick_;
    }
    return cachedInsights_;
}

std::optional<WidgetHub::ActiveProject> WidgetHub::activeProject() const {
    const auto project = dependencies_.projects.activeProject();
    if (!project) return std::nullopt;
    const std::array today = {dependencies_.days.today()};
    return ActiveProject{project->name, dependencies_.projectTime.totalSeconds(today, project->id),
                         project->colorHex};
}

}  // namespace tidewatch
