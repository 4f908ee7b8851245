#include "analysis/report_data.h"

#include <algorithm>
#include <cstddef>
#include <span>

#include "analysis/spanish_dates.h"
#include "base/instant.h"

namespace tidewatch {
namespace {

constexpr std::size_t maxTopAppsOfMonth = 8;
constexpr const char* noDay = "—";

// The days of the month so far: how many have any time, and which has the most.
void reviewDays(const DailyStore& days, std::span<const DayKey> keys, ReportData& data) {
    data.recordDay = noDay;
    for (const auto& key : keys) {
        const auto seconds = days.seconds(key);
        if (seconds <= Seconds()) continue;
        ++data.activeDays;
        if (seconds <= data.recordSeconds) continue;
        data.recordSeconds = seconds;
        data.recordDay = key.text();
    }
    if (data.activeDays > 0) data.avgDailySeconds = Seconds(data.totalSeconds.count() / data.activeDays);
}

std::vector<ReportApp> topApps(const ReportSources& sources, std::span<const DayKey> keys) {
    std::vector<ReportApp> apps;
    for (const auto& [app, seconds] : sources.apps.aggregate(keys)) {
        if (apps.size() == maxTopAppsOfMonth) break;
        apps.push_back({sources.appInfo.info(app).name, seconds});
    }
    return apps;
}

}  // namespace

ReportData buildReportData(const ReportSources& sources) {
    const auto now = sources.clock.now();
    const auto time = civilTime(now, sources.clock.timeZone()->utcOffset(now));
    const auto keys = sources.goalEvaluator.dayKeysInSameMonthAs(now);
    ReportData data;
    data.periodTitle = "MES · " + spanish::monthTitle(time.date.year() / time.date.month());
    data.totalSeconds = sources.goalEvaluator.sumSeconds(keys);
    reviewDays(sources.days, keys, data);
    data.scorePct = sources.scorer.compute(keys).score();
    data.topApps = topApps(sources, keys);
    data.goals = sources.goalEvaluator.evaluate(now);
    data.starsMonth = sources.rewards.starsThisMonth();
    data.streak = sources.rewards.currentStreak();
    data.generated = spanish::dateAndTime(time);
    return data;
}

}  // namespace tidewatch
