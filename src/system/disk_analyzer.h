#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/serial_queue.h"
#include "base/signal.h"
#include "platform/api/clock.h"
#include "platform/api/desktop.h"
#include "platform/api/file_system.h"
#include "platform/api/job_queue_factory.h"
#include "platform/api/log.h"
#include "platform/api/randomness.h"
#include "platform/api/trash.h"
#include "platform/api/user_folders.h"
#include "system/disk_scan_result.h"

namespace tidewatch {

/// Finds large and forgotten files, and the folders that weigh most, in the user's folders when asked. Main
/// thread only.
class DiskAnalyzer final {
public:
    /// All of it must outlive the analyzer.
    struct Dependencies {
        const platform::Clock& clock;
        platform::FileSystem& files;
        platform::UserFolders& folders;
        platform::Desktop& desktop;
        platform::Trash& trash;
        platform::Log& log;
        platform::Randomness& randomness;
        platform::JobQueueFactory& queues;
    };

    explicit DiskAnalyzer(const Dependencies& dependencies);
    /// Ends a running scan; its result is dropped.
    ~DiskAnalyzer();
    DiskAnalyzer(const DiskAnalyzer&) = delete;
    DiskAnalyzer& operator=(const DiskAnalyzer&) = delete;

    /// Emitted after each change of the observable fields.
    Signal<> changed;

    [[nodiscard]] const DiskScanResult& result() const { return result_; }
    [[nodiscard]] bool isScanning() const { return isScanning_; }
    /// What is being scanned; empty otherwise.
    [[nodiscard]] const std::string& progressLabel() const { return progressLabel_; }
    /// The names of the folders that a scan reads, in its order; empty until they have been looked up.
    [[nodiscard]] const std::vector<std::string>& folderNames() const { return folderNames_; }

    /// Looks the folder names up in the background.
    void lookUpFolderNames();

    /// Starts a scan in the background; ignored while one is running.
    void scan();

    /// See Desktop::reveal().
    void reveal(const std::string& path, std::function<void(const Status&)> done);

    /// Returns whether the file is in the trash. Its row goes; the sums stay until the next scan.
    bool moveToTrash(const std::string& path);

    /// How long before `now` a time is, in words: "hoy", "hace 3d", "hace 2mes", "hace 1año".
    [[nodiscard]] static std::string daysAgo(platform::FileTime time, Instant now);

private:
    [[nodiscard]] DiskScanResult run(Instant now);
    [[nodiscard]] std::vector<std::string> roots() const;
    [[nodiscard]] JobQueue& queue();
    void finish(DiskScanResult result);
    [[nodiscard]] Uuid newId();

    Dependencies dependencies_;
    DiskScanResult result_;
    bool isScanning_ = false;
    std::string progressLabel_;
    std::vector<std::string> folderNames_;
    std::atomic<bool> isEnding_ = false;
    std::unique_ptr<JobQueue> queue_;  // last: its jobs use the rest
};

}  // namespace tidewatch
