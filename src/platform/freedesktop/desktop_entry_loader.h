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

/// Reads the `applications` folders in a thread of its own, and looks there whether they have changed: a
/// folder on a disk or a server that hangs keeps that thread and nobody else. Safe from any thread.
class DesktopEntryLoader final {
public:
    /// Begins to read `folders`. Whatever is waited for is waited for no longer than `timeout`.
    DesktopEntryLoader(std::vector<std::string> folders, std::chrono::milliseconds timeout);
    DesktopEntryLoader(const DesktopEntryLoader&) = delete;
    DesktopEntryLoader& operator=(const DesktopEntryLoader&) = delete;

    /// A thread that hangs is left to itself; it goes with the process.
    ~DesktopEntryLoader();

    /// Looks whether the folders have changed since they were read, and has them read anew if so. Does
    /// nothing while they are being looked at or read. Waits for what the look finds.
    void check();

    /// How often looks have found a change so far.
    [[nodiscard]] int changes() const;

    /// Whether folders are being read, or have been read and not been taken.
    [[nodiscard]] bool isReading() const;

    /// What was read since the last call; nullptr if nothing was.
    [[nodiscard]] std::shared_ptr<const DesktopEntryIndex> take();

    /// Waits until no folder is being looked at or read, without a limit.
    void waitUntilIdle() const;

private:
    enum class Work { none, checking, reading, over };

    // What the thread shares with this object, which it may outlive.
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
