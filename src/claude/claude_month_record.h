#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tidewatch {

/// One calendar month of Claude usage, kept after its logs are gone.
struct ClaudeMonthRecord {
    std::string month;                 ///< "2026-03"
    std::int64_t activeWindows = 0;    ///< five-hour windows with usage
    std::int64_t possibleWindows = 0;  ///< that the month could have held
    std::int64_t heavyWindows = 0;     ///< 0 except for the current month
    std::int64_t conversations = 0;    ///< counted log lines
    std::int64_t outputTokensK = 0;    ///< thousands
    double subscriptionUsd = 0;        ///< the subscription's price when the row was last computed
    bool operator==(const ClaudeMonthRecord&) const = default;

    /// Active of possible windows, not limited; 0 without any.
    [[nodiscard]] double efficiency() const;
};

/// Parses a history file: a JSON array of months. Returns nullopt if it is anything else, or if one row lacks
/// a key or has a value of another type. An integer may be written as a number without a fraction ("5.0");
/// of duplicate keys the last one counts; other keys are ignored.
[[nodiscard]] std::optional<std::vector<ClaudeMonthRecord>> parseMonthHistory(std::string text);

/// The file's content, on one line. Returns nullopt if a number is not finite.
[[nodiscard]] std::optional<std::string> serializeMonthHistory(const std::vector<ClaudeMonthRecord>& months);

}  // namespace tidewatch
