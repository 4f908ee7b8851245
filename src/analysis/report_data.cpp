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

// The days of the month so far: how many have any time, and which has most.
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

std::vector<ReportApp> topApps(const ReportSources& from, std::span<const DayKey> keys) {
    std::vector<ReportApp> apps;
    for (const auto& [app, seconds] : from.apps.aggregate(keys)) {
        if (apps.size() == maxTopAppsOfMonth) break;
        apps.push_back({from.appInfo.info(app).name, seconds});
    }
    return apps;
}

}  // namespace

ReportData buildReportData(const ReportSources& from) {
    const auto now = from.clock.now();
    const auto time = civilTime(now, from.clock.timeZone()->utcOffset(now));
    const auto keys = from.goalEvaluator.dayKeysInSameMonthAs(now);
    ReportData data;
    data.periodTitle = "MES · " + spanish::monthTitle(time.date.year() / time.date.month());
    data.totalSeconds = from.goalEvaluator.sumSeconds(keys);
    reviewDays(from.days, keys, data);
    data.scorePct = from.scorer.compute(keys).score();
    data.topApps = topApps(from, keys);
    data.goals = from.goalEvaluator.evaluate(now);
    data.starsMonth = from.rewards.starsThisMonth();
    data.streak = from.rewards.currentStreak();
    data.generated = spanish::dateAndTime(time);
    return data;
}

}  // namespace tidewatch
