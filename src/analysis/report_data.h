#pragma once

#include <array>
#include <string>
#include <vector>

#include "analysis/goal_evaluator.h"
#include "analysis/reward_engine.h"
#include "base/seconds.h"
#include "classification/app_info_resolver.h"
#include "classification/productivity_score.h"
#include "core/app_usage_store.h"
#include "core/daily_store.h"
#include "platform/api/clock.h"

namespace tidewatch {

struct ReportApp {
    std::string name;
    Seconds seconds;
    bool operator==(const ReportApp&) const = default;
};

/// What the report of a month says: from its first day through today.
struct ReportData {
    std::string periodTitle;  ///< "MES · Noviembre 2026"
    Seconds totalSeconds;
    int activeDays = 0;  ///< days with any seconds at all
    Seconds avgDailySeconds;
    Seconds recordSeconds;
    std::string recordDay;           ///< key of the best day, "—" without one
    double scorePct = 0;             ///< of the whole month at once, a fraction from 0 to 1
    std::vector<ReportApp> topApps;  ///< at most eight, most seconds first
    std::array<GoalProgress, 4> goals;
    int starsMonth = 0;
    int streak = 0;         ///< days
    std::string generated;  ///< "21 nov 2026 · 09:05"
};

/// Where the report's figures come from; all of it must outlive whoever holds this.
struct ReportSources {
    const platform::Clock& clock;
    const DailyStore& days;
    const AppUsageStore& apps;
    const AppInfoResolver& appInfo;
    const ProductivityScorer& scorer;
    const GoalEvaluator& goalEvaluator;
    const RewardEngine& rewards;
};

/// The report of the month of now. Main thread only.
[[nodiscard]] ReportData buildReportData(const ReportSources& sources);

}  // namespace tidewatch
