#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <map>
#include <optional>

#include "claude/claude_snapshot.h"
#include "claude/log_memory.h"
#include "platform/api/clock.h"
#include "platform/api/file_system.h"

namespace tidewatch {

/// The usage of a past month, by local time.
struct PastMonth {
    std::int64_t activeWindows = 0;
    std::int64_t conversations = 0;  ///< lines with output tokens
    std::int64_t outputTokensK = 0;  ///< thousands, truncated line by line
    bool operator==(const PastMonth&) const = default;
};

using PastMonths = std::map<std::chrono::year_month, PastMonth>;

/// Scans the logs. The results are those of reading all files anew; see LogMemory for what is read. Not
/// thread-safe, but may be used on any thread.
class LogScanner final {
public:
    /// All must outlive it. `helpFrom`: see LogMemory::worthHelping.
    LogScanner(const platform::FileSystem& files, const platform::Clock& clock,
               std::uint64_t helpFrom = LogMemory::worthHelping);

    /// Scans the files modified in the current month of UTC. Without a log directory the empty snapshot.
    [[nodiscard]] ClaudeSnapshot scan();

    /// The months of all files found by the last scan, except the current one; nullopt if it found no log
    /// directory, and after cancel().
    [[nodiscard]] std::optional<PastMonths> scanPastMonths();

    /// Ends a scan early; the scanner must not be used afterwards. Thread-safe.
    void cancel() { cancelled_ = true; }

private:
    void read(platform::FileTime modifiedFrom, Instant now);

    const platform::Clock& clock_;
    LogMemory memory_;
    bool hasLogs_ = false;
    std::atomic<bool> cancelled_ = false;
};

}  // namespace tidewatch
