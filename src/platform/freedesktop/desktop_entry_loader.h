#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "platform/freedesktop/desktop_entry_index.h"

namespace tidewatch::platform {

/// Loads the `applications` folders and checks them for changes on its own thread: a disk or server that
/// hangs blocks only that thread. Thread-safe.
class DesktopEntryLoader final {
public:
    /// Starts loading `folders`. No wait takes longer than `timeout`.
    DesktopEntryLoader(std::vector<std::string> folders, std::chrono::milliseconds timeout);
    DesktopEntryLoader(const DesktopEntryLoader&) = delete;
    DesktopEntryLoader& operator=(const DesktopEntryLoader&) = delete;

    /// A thread that hangs is detached and ends with the process.
    ~DesktopEntryLoader();

    /// Checks whether the folders have changed since they were loaded, and reloads them if so. No effect
    /// while a check or load is running. Waits for the result of the check.
    void check();

    /// The number of checks that have found a change.
    [[nodiscard]] int changes() const;

    /// Whether an index is being loaded, or has been loaded but not taken.
    [[nodiscard]] bool isReading() const;

    /// The index loaded since the last call; nullptr if none.
    [[nodiscard]] std::shared_ptr<const DesktopEntryIndex> take();

    /// Waits, without a timeout, until no check or load is running.
    void waitUntilIdle() const;

private:
    enum class Work { none, checking, reading, over };

    // The state shared with the thread, which may outlive this object.
    struct Shared {
        mutable std::mutex mutex;
        mutable std::condition_variable changed;
        std::atomic<bool> stop = false;
        Work work = Work::reading;
        int changes = 0;
        std::shared_ptr<const DesktopEntryIndex> fresh;
    };

    static void run(const std::shared_ptr<Shared>& shared, const std::vector<std::string>& folders);

    const std::chrono::milliseconds timeout_;
    const std::shared_ptr<Shared> shared_ = std::make_shared<Shared>();
};

}  // namespace tidewatch::platform
