#include "claude/month_history.h"

#include <map>
#include <string>
#include <utility>

#include "claude/local_months.h"
#include "claude/usage_window.h"
#include "core/local_time.h"

namespace tidewatch {
namespace {

std::int64_t daysIn(std::chrono::year_month month) {
    return static_cast<unsigned>((month / std::chrono::last).day());
}

}  // namespace

MonthHistory::MonthHistory(platform::FileSystem& files, platform::Log& log, const platform::Clock& clock)
    : clock_(clock), file_(files, log, "claude_history.json") {}

std::vector<ClaudeMonthRecord> MonthHistory::update(const PastMonths& past, const ClaudeSnapshot& snapshot,
                                                    double subscriptionUsd) {
    std::string before;
    auto stored = file_.read([&](std::string text) {
        before = text;
        return parseMonthHistory(std::move(text));
    });
    std::map<std::string, ClaudeMonthRecord> rows;
    if (stored) {
        for (auto& row : *stored) rows.insert_or_assign(row.month, row);
    }
    const auto zone = clock_.timeZone();
    for (const auto& [month, usage] : past) {
        const auto key = toMonthKey(month);
        rows[key] = {
            .month = key,
            .activeWindows = usage.activeWindows,
            .possibleWindows = possibleWindows(month, *zone),
            .heavyWindows = 0,
            .conversations = usage.conversations,
            .outputTokensK = usage.outputTokensK,
            .subscriptionUsd = subscriptionUsd,
        };
    }
    const auto now = std::chrono::floor<std::chrono::seconds>(clock_.now());
    const auto current = toMonthKey(LocalMonths(zone).monthOf(now));
    rows[current] = {
        .month = current,
        .activeWindows = snapshot.roi.activeWindows,
        .possibleWindows = snapshot.roi.possibleWindows,
        .heavyWindows = snapshot.roi.heavyWindows,
        .conversations = snapshot.month.requests,
        .outputTokensK = snapshot.month.outputTokens / 1000,
        .subscriptionUsd = subscriptionUsd,
    };
    std::vector<ClaudeMonthRecord> result;
    result.reserve(rows.size());
    for (auto& [month, row] : rows) result.push_back(std::move(row));
    const auto text = serializeMonthHistory(result);
    if (text && *text != before) static_cast<void>(file_.write(*text));
    return result;
}

// The days are those of the month of UTC in which the local month begins: east of Greenwich the previous one.
std::int64_t MonthHistory::possibleWindows(std::chrono::year_month month,
                                           const platform::TimeZone& zone) const {
    const auto begin = instantOf(std::chrono::local_days(month / 1), zone);
    const std::chrono::year_month_day date(std::chrono::floor<std::chrono::days>(begin));
    return daysIn(date.year() / date.month()) * UsageWindow::perDay;
}

}  // namespace tidewatch
