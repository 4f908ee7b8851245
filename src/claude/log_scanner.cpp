#include "claude/log_scanner.h"

#include <algorithm>
#include <unordered_map>
#include <utility>
#include <vector>

#include "claude/local_months.h"
#include "claude/period_sums.h"
#include "claude/usage_window.h"

namespace tidewatch {
namespace {

using std::chrono::sys_days;
using std::chrono::sys_seconds;

constexpr std::int64_t heavyFrom = 50001;

/// Where the periods begin; a date equal to a boundary is in the period.
struct Boundaries {
    sys_seconds today;
    sys_seconds fiveHours;
    sys_seconds week;
    sys_seconds month;

    static Boundaries at(Instant now) {
        const auto day = std::chrono::floor<std::chrono::days>(now);
        const std::chrono::year_month_day date(day);
        const std::chrono::weekday weekday(day);
        return {
            .today = day,
            // Log lines are dated to the second.
            .fiveHours = std::chrono::ceil<std::chrono::seconds>(now - std::chrono::hours(5)),
            .week = day - (weekday - std::chrono::Monday),
            .month = sys_days(date.year() / date.month() / 1),
        };
    }
};

/// Output tokens per window.
class WindowSums final {
public:
    void add(const UsageRow& row) { addChecked(output_[UsageWindow::of(row.first)], row.tokens.output); }

    [[nodiscard]] ClaudeWindowRoi roi(sys_days monthBegin, Instant now) const {
        const auto days = std::chrono::floor<std::chrono::days>(now - monthBegin).count();
        return {
            .activeWindows = std::ssize(output_),
            .possibleWindows = (std::max<std::int64_t>(days, 1) + 1) * UsageWindow::perDay,
            .heavyWindows =
                std::ranges::count_if(output_, [](const auto& window) { return window.second >= heavyFrom; }),
        };
    }

private:
    std::map<UsageWindow, std::int64_t> output_;
};

/// Collects the current month.
class SnapshotSums final {
public:
    SnapshotSums(const Boundaries& boundaries, std::size_t models)
        : from_(boundaries), today_(models), lastFiveH_(models), week_(models), month_(models) {}

    void add(const UsageRow& row) {
        if (row.first < from_.month) return;
        month_.add(row);
        windows_.add(row);
        if (row.first >= from_.week) week_.add(row);
        if (row.first >= from_.today) today_.add(row);
        if (row.first >= from_.fiveHours) {
            lastFiveH_.add(row);
            started_ = std::min(started_.value_or(row.first), row.first);
            lastMessage_ = std::max(lastMessage_.value_or(row.last()), row.last());
        }
    }

    [[nodiscard]] ClaudeSnapshot snapshot(const ModelNames& models, Instant now) const {
        ClaudeSnapshot result;
        result.today = today_.total(models);
        result.lastFiveH = lastFiveH_.total(models);
        result.week = week_.total(models);
        result.month = month_.total(models);
        const auto top = result.month.topModel().value_or("");
        result.plan = top.find("opus") != std::string::npos ? "Max" : "Pro";
        result.roi = windows_.roi(std::chrono::floor<std::chrono::days>(from_.month), now);
        result.windowStarted = started_;
        result.windowLastMsg = lastMessage_;
        return result;
    }

private:
    const Boundaries from_;
    PeriodSums today_;
    PeriodSums lastFiveH_;
    PeriodSums week_;
    PeriodSums month_;
    WindowSums windows_;
    std::optional<sys_seconds> started_;
    std::optional<sys_seconds> lastMessage_;
};

}  // namespace

LogScanner::LogScanner(const platform::FileSystem& files, const platform::Clock& clock,
                       std::uint64_t helpFrom)
    : clock_(clock), memory_(files, helpFrom) {}

void LogScanner::read(platform::FileTime modifiedFrom, Instant now) {
    memory_.read(modifiedFrom, Boundaries::at(now).fiveHours, LocalMonths(clock_.timeZone()), cancelled_);
}

ClaudeSnapshot LogScanner::scan() {
    hasLogs_ = memory_.find();
    if (!hasLogs_) return {};
    const auto now = clock_.now();
    const auto boundaries = Boundaries::at(now);
    read(boundaries.month, now);
    SnapshotSums sums(boundaries, memory_.models().size());
    memory_.forEachRow(boundaries.month, [&](const UsageRow& row) { sums.add(row); });
    auto snapshot = sums.snapshot(memory_.models(), now);
    snapshot.scannedAt = clock_.now();
    return snapshot;
}

std::optional<PastMonths> LogScanner::scanPastMonths() {
    if (!hasLogs_) return std::nullopt;
    constexpr auto everything = platform::FileTime::min();
    const auto now = clock_.now();
    read(everything, now);
    if (cancelled_) return std::nullopt;

    LocalMonths localMonths(clock_.timeZone());
    const auto current = localMonths.monthOf(std::chrono::floor<std::chrono::seconds>(now));
    PastMonths months;
    std::vector<std::pair<std::chrono::year_month, UsageWindow>> windows;
    memory_.forEachRow(everything, [&](const UsageRow& row) {
        if (row.linesWithOutput == 0) return;
        const auto month = localMonths.monthOf(row.first);
        if (month == current) return;
        auto& sums = months[month];
        sums.conversations += row.linesWithOutput;
        addChecked(sums.outputTokensK, row.outputThousands);
        const std::pair used(month, UsageWindow::of(row.first));
        if (windows.empty() || windows.back() != used) windows.push_back(used);
    });
    std::ranges::sort(windows);
    windows.erase(std::unique(windows.begin(), windows.end()), windows.end());
    for (const auto& [month, window] : windows) ++months[month].activeWindows;
    return months;
}

}  // namespace tidewatch
