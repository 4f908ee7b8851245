#pragma once

#include <vector>

#include "claude/claude_month_record.h"
#include "claude/claude_snapshot.h"
#include "claude/log_scanner.h"
#include "core/record_file.h"
#include "platform/api/clock.h"

namespace tidewatch {

/// The months of the past, in "claude_history.json" in the data directory: logs are pruned after a while, the
/// rows stay. Not thread-safe, but may be used on any thread.
class MonthHistory final {
public:
    /// All must outlive it.
    MonthHistory(platform::FileSystem& files, platform::Log& log, const platform::Clock& clock);

    /// Reads the file, replaces the rows of `past`, and that of the current local month with what `snapshot`
    /// says, writes the file if that changed it, and returns the rows in ascending order of months. All these
    /// rows get `subscriptionUsd`. An unreadable file is treated as empty and set aside; a failure to write
    /// is silent.
    [[nodiscard]] std::vector<ClaudeMonthRecord> update(const PastMonths& past,
                                                        const ClaudeSnapshot& snapshot,
                                                        double subscriptionUsd);

private:
    [[nodiscard]] std::int64_t possibleWindows(std::chrono::year_month month,
                                               const platform::TimeZone& zone) const;

    const platform::Clock& clock_;
    RecordFile file_;
};

}  // namespace tidewatch
