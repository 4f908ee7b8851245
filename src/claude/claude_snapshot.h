#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "base/instant.h"
#include "claude/token_counts.h"

namespace tidewatch {

/// A date before all others: never.
inline constexpr Instant distantPast =
    std::chrono::sys_days(std::chrono::year(1) / std::chrono::January / std::chrono::day(1));

/// Output tokens per model, by its name as logged.
using TokensByModel = std::map<std::string, std::int64_t, std::less<>>;

/// The name of the model with most output tokens, of equal ones the first; nullopt for an empty table.
[[nodiscard]] std::optional<std::string> topModelOf(const TokensByModel& byModel);

/// The totals of a period.
struct ClaudeUsagePeriod {
    std::int64_t inputTokens = 0;
    std::int64_t outputTokens = 0;
    std::int64_t cacheWriteTokens = 0;
    std::int64_t cacheReadTokens = 0;
    double estimatedUsd = 0;  ///< the sum of the lines' list prices
    std::int64_t requests = 0;
    TokensByModel byModel;
    bool operator==(const ClaudeUsagePeriod&) const = default;

    /// An overflow aborts the process.
    [[nodiscard]] std::int64_t totalTokens() const;
    /// "$1.50".
    [[nodiscard]] std::string displayCost() const;
    [[nodiscard]] std::optional<std::string> topModel() const { return topModelOf(byModel); }
};

/// "Opus", "Sonnet" or "Haiku" if the name contains it in lower case; otherwise the name.
[[nodiscard]] std::string_view shortModel(std::string_view model);

/// "999", "12K" from a thousand on, "1.5M" from a million on.
[[nodiscard]] std::string fmtK(std::int64_t tokens);

/// How many of a month's five-hour windows were used.
struct ClaudeWindowRoi {
    std::int64_t activeWindows = 0;
    std::int64_t possibleWindows = 0;
    std::int64_t heavyWindows = 0;  ///< with more than 50,000 output tokens
    bool operator==(const ClaudeWindowRoi&) const = default;

    /// Active of possible windows, at most 1; 0 without any.
    [[nodiscard]] double efficiency() const;
    /// 0 without an active window.
    [[nodiscard]] double costPerWindow(double subscriptionUsd) const;
    [[nodiscard]] double extractedUsd(double subscriptionUsd) const { return subscriptionUsd * efficiency(); }
};

/// What the logs of the current month say. Days, weeks (from Monday) and the month are those of UTC.
struct ClaudeSnapshot {
    ClaudeUsagePeriod today;
    ClaudeUsagePeriod lastFiveH;
    ClaudeUsagePeriod week;  ///< only its part within the month
    ClaudeUsagePeriod month;
    double monthlyBudgetUsd = 0;
    std::string plan = "Max";  ///< "Max" or "Pro", guessed from the most used model
    ClaudeWindowRoi roi;
    std::optional<Instant> windowStarted;  ///< the first line of the last five hours
    std::optional<Instant> windowLastMsg;  ///< the last one
    Instant scannedAt = distantPast;
    bool operator==(const ClaudeSnapshot&) const = default;
};

}  // namespace tidewatch
