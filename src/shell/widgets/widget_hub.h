#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "analysis/app_entry.h"
#include "analysis/goal_evaluator.h"
#include "analysis/insights_engine.h"
#include "analysis/reward_engine.h"
#include "base/signal.h"
#include "classification/productivity_score.h"
#include "core/app_usage_store.h"
#include "core/daily_store.h"
#include "platform/api/main_loop.h"
#include "projects/project_store.h"
#include "projects/project_time_store.h"
#include "system/speed_tester.h"
#include "system/system_monitor.h"

namespace tidewatch {

/// The data that all widgets share, and the second at which they refresh. Main thread only.
class WidgetHub final {
public:
    /// All of it must outlive the hub.
    struct Dependencies {
        platform::MainLoop& mainLoop;
        const DailyStore& days;
        const AppUsageStore& apps;
        const HourlyStore& hours;
        const MinuteStore& minutes;
        const CategoryStore& categories;
        const ProductivityScorer& scorer;
        const AppInfoResolver& appInfo;
        const GoalEvaluator& goals;
        const RewardEngine& rewards;
        const ProjectStore& projects;
        const ProjectTimeStore& projectTime;
        SystemMonitor::Dependencies monitor;
        SpeedTester::Dependencies speed;
    };

    explicit WidgetHub(const Dependencies& dependencies);
    WidgetHub(const WidgetHub&) = delete;
    WidgetHub& operator=(const WidgetHub&) = delete;

    /// Emitted each second while started, after tick() has advanced.
    Signal<> changed;

    /// The seconds that it has been started for.
    [[nodiscard]] std::int64_t tick() const { return tick_; }

    /// Ignored while started.
    void start();
    void stop();

    [[nodiscard]] ProductivityScore todayScore() const;

    /// The applications of today, those with the most seconds first.
    [[nodiscard]] std::vector<AppEntry> topApps(std::size_t limit) const;

    [[nodiscard]] std::array<GoalProgress, 4> goals() const;

    /// Those of the week, computed anew at most every eight ticks. Valid until the next call.
    [[nodiscard]] const Insights& insights();

    struct ActiveProject {
        std::string name;  ///< any text, of any length
        Seconds seconds;   ///< today
        std::string colorHex;
        bool operator==(const ActiveProject&) const = default;
    };
    /// Returns nullopt if no project is active.
    [[nodiscard]] std::optional<ActiveProject> activeProject() const;

    // See RewardEngine.
    [[nodiscard]] int starsToday() const { return dependencies_.rewards.starsToday(); }
    [[nodiscard]] int streakDays() const { return dependencies_.rewards.currentStreak(); }
    [[nodiscard]] int starsMonth() const { return dependencies_.rewards.starsThisMonth(); }

    /// The widgets' own, apart from those of the statistics window.
    [[nodiscard]] SystemMonitor& monitor() { return monitor_; }
    [[nodiscard]] SpeedTester& speed() { return speed_; }

private:
    void advance();

    const Dependencies dependencies_;
    const InsightsEngine insightsEngine_;
    SystemMonitor monitor_;
    SpeedTester speed_;
    std::int64_t tick_ = 0;
    Insights cachedInsights_;
    std::optional<std::int64_t> insightsTick_;  ///< at which they were computed
    std::unique_ptr<platform::RepeatingTimer> timer_;
    /// Expires with this object, for posted jobs.
    std::shared_ptr<WidgetHub*> self_ = std::make_shared<WidgetHub*>(this);
};

}  // namespace tidewatch
