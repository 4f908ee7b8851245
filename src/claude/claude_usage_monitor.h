#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "base/serial_queue.h"
#include "base/signal.h"
#include "claude/claude_month_record.h"
#include "claude/claude_settings.h"
#include "claude/claude_snapshot.h"
#include "claude/log_scanner.h"
#include "claude/month_history.h"
#include "platform/api/clock.h"
#include "platform/api/job_queue_factory.h"
#include "platform/api/main_loop.h"

namespace tidewatch {

/// What the user's Claude logs say, scanned in the background when somebody asks. Main thread only.
class ClaudeUsageMonitor final {
public:
    /// All of it must outlive the monitor.
    struct Dependencies {
        const platform::Clock& clock;
        platform::MainLoop& mainLoop;
        platform::FileSystem& files;
        platform::Log& log;
        platform::JobQueueFactory& queues;
        ClaudeSettings& settings;
    };

    explicit ClaudeUsageMonitor(const Dependencies& dependencies);
    /// Ends a running scan; its result is dropped.
    ~ClaudeUsageMonitor();
    ClaudeUsageMonitor(const ClaudeUsageMonitor&) = delete;
    ClaudeUsageMonitor& operator=(const ClaudeUsageMonitor&) = delete;

    /// The observable fields.
    enum class Field { snap, history, isScanning };

    /// Emitted after each assignment of a field. A scan assigns the snapshot, then the history.
    Signal<Field> changed;

    /// The latest snapshot; empty before the first scan.
    [[nodiscard]] const ClaudeSnapshot& snap() const { return snap_; }
    /// The oldest month first; empty before the first scan.
    [[nodiscard]] const std::vector<ClaudeMonthRecord>& history() const { return history_; }
    /// Whether a snapshot has been published.
    [[nodiscard]] bool hasScanned() const { return hasScanned_; }
    /// Whether a scan runs: until its history is there.
    [[nodiscard]] bool isScanning() const { return running_ > 0; }

    /// Scans if the last snapshot was published more than a minute ago. A call during a scan starts another
    /// one, which runs after it.
    void refresh();

    /// Scans in any case.
    void forceRefresh();

    /// Stores the budget and scans.
    void setMonthlyBudgetUsd(double usd);

private:
    void start();
    void rescan();
    void publish(ClaudeSnapshot snapshot, double subscriptionUsd);
    void finish(std::vector<ClaudeMonthRecord> history);
    [[nodiscard]] std::vector<ClaudeMonthRecord> loadHistory(const ClaudeSnapshot& snapshot,
                                                             double subscriptionUsd);

    const platform::Clock& clock_;
    platform::MainLoop& mainLoop_;
    ClaudeSettings& settings_;
    ClaudeSnapshot snap_;
    std::vector<ClaudeMonthRecord> history_;
    Instant lastScan_ = distantPast;
    bool hasScanned_ = false;
    int running_ = 0;
    // Lets a start that has been posted detect that this object has been destroyed.
    std::shared_ptr<const bool> alive_ = std::make_shared<const bool>(true);
    LogScanner scanner_;  // used on the queue only, as is the next one
    MonthHistory monthHistory_;
    std::unique_ptr<JobQueue> queue_;
};

}  // namespace tidewatch
