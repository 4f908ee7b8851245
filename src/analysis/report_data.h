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

/// The content of the monthly report: from the first day of the month through today.
struct ReportData {
    std::string periodTitle;  ///< "MES · Noviembre 2026"
    Seconds totalSeconds;
    int activeDays = 0;  ///< days with any seconds
    Seconds avgDailySeconds;
    Seconds recordSeconds;
    std::string recordDay;           ///< key of the best day, or "—"
    double scorePct = 0;             ///< of the whole month, a fraction from 0 to 1
    std::vector<ReportApp> topApps;  ///< at most eight, in descending order
    std::array<GoalProgress, 4> goals;
    int starsMonth = 0;
    int streak = 0;         ///< days
    std::string generated;  ///< "21 nov 2026 · 09:05"
};

/// The sources of the report's figures; all of them must outlive the holder.
struct ReportSources {
    const platform::Clock& clock;
    const DailyStore& days;
    const AppUsageStore& apps;
    const AppInfoResolver& appInfo;
    const ProductivityScorer& scorer;
    const GoalEvaluator& goalEvaluator;
    const RewardEngine& rewards;
};

/// The report of the current month. Main thread only.
[[nodiscard]] ReportData buildReportData(const ReportSources& sources);

}  // namespace tidewatch
