#pragma once

#include <chrono>
#include <cstdint>
#include <vector>

#include "claude/dollar_sum.h"
#include "claude/local_months.h"
#include "claude/token_counts.h"

namespace tidewatch {

/// The sums of one or more log lines of one model.
struct UsageRow {
    std::chrono::sys_seconds first;  ///< the earliest line
    std::uint32_t span = 0;          ///< seconds from there to the latest line
    std::uint32_t model = 0;         ///< in ModelNames
    TokenCounts tokens;
    DollarSum cost;
    std::int64_t outputThousands = 0;  ///< of the lines with output tokens, each truncated to thousands
    std::uint32_t lines = 0;
    std::uint32_t linesWithOutput = 0;

    [[nodiscard]] std::chrono::sys_seconds last() const { return first + std::chrono::seconds(span); }
};

/// Which lines are merged into one row: those of one model and a quarter of an hour, so that periods which
/// begin at a quarter can be told apart later. Not merged are recent lines, since the last five hours begin
/// at any second, and lines of different local months.
class UsageMerging final {
public:
    /// Lines from the quarter of `detailFrom` on are not merged.
    UsageMerging(std::chrono::sys_seconds detailFrom, LocalMonths months);

    [[nodiscard]] bool isDetail(const UsageRow& row) const { return row.last() >= detailFrom_; }
    [[nodiscard]] std::chrono::sys_seconds detailFrom() const { return detailFrom_; }
    [[nodiscard]] LocalMonths& months() { return months_; }

    /// Adds a row to `rows`, to an existing one if it may.
    void add(const UsageRow& row, std::vector<UsageRow>& rows);

private:
    [[nodiscard]] bool mayMerge(const UsageRow& row, const UsageRow& other);

    std::chrono::sys_seconds detailFrom_;
    LocalMonths months_;
};

}  // namespace tidewatch
