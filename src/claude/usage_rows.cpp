#include "claude/usage_rows.h"

#include <algorithm>
#include <utility>

namespace tidewatch {
namespace {

using Quarters = std::chrono::duration<std::int64_t, std::ratio<900>>;

// How many rows are searched for one to merge with, from the last: a log is written in the order of time.
constexpr std::ptrdiff_t mergeDistance = 16;

auto quarterOf(std::chrono::sys_seconds date) {
    return std::chrono::floor<Quarters>(date);
}

// False, with `row` in an undefined state, if a sum does not fit.
bool tryMerge(UsageRow& row, const UsageRow& other) {
    const auto last = std::max(row.last(), other.last());
    row.first = std::min(row.first, other.first);
    row.span = static_cast<std::uint32_t>((last - row.first).count());
    row.cost.add(other.cost);
    row.lines += other.lines;
    row.linesWithOutput += other.linesWithOutput;
    return row.lines >= other.lines && tryAdd(row.tokens.input, other.tokens.input) &&
           tryAdd(row.tokens.output, other.tokens.output) &&
           tryAdd(row.tokens.cacheWrite, other.tokens.cacheWrite) &&
           tryAdd(row.tokens.cacheRead, other.tokens.cacheRead) &&
           tryAdd(row.outputThousands, other.outputThousands);
}

}  // namespace

UsageMerging::UsageMerging(std::chrono::sys_seconds detailFrom, LocalMonths months)
    : detailFrom_(quarterOf(detailFrom)), months_(std::move(months)) {}

bool UsageMerging::mayMerge(const UsageRow& row, const UsageRow& other) {
    return row.model == other.model && quarterOf(row.first) == quarterOf(other.first) && !isDetail(other) &&
           months_.monthOf(row.first) == months_.monthOf(other.first) &&
           months_.monthOf(row.last()) == months_.monthOf(other.last());
}

void UsageMerging::add(const UsageRow& row, std::vector<UsageRow>& rows) {
    if (!isDetail(row)) {
        const auto end = rows.rbegin() + std::min<std::ptrdiff_t>(mergeDistance, std::ssize(rows));
        for (auto other = rows.rbegin(); other != end; ++other) {
            if (!mayMerge(row, *other)) continue;
            auto merged = *other;
            if (!tryMerge(merged, row)) continue;
            *other = merged;
            return;
        }
    }
    rows.push_back(row);
}

}  // namespace tidewatch
