#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <string>

#include "platform/api/file_system.h"
#include "platform/api/log.h"
#include "platform/posix/file_lock.h"

namespace tidewatch::platform {

/// Keeps other processes from writing to the data directory: only the holder of the lock on its file "lock"
/// may write. The lock is released with this object, or when the process ends in any way. Thread-safe.
///
/// While it is held, the file or the whole directory may be removed, so that another instance could start; so
/// the lock is verified before each write. If another process has taken it, the directory belongs to that
/// one: both count the same seconds, so only what was not written before the other one started is lost. Once
/// the other one has ended, the lock is reacquired.
class DirectoryLock final {
public:
    /// `log` must outlive this object.
    explicit DirectoryLock(Log& log) : log_(log) {}

    /// Locks `directory`. Restricts the permissions of its content and, if locked, removes leftovers.
    [[nodiscard]] FileLock::State take(const std::string& directory);

    /// Must be called before a write. Recreates the directory and the lock if they are gone.
    [[nodiscard]] RecordLock ensure();

    /// From now on ensure() calls `restore`, on its thread, whenever the lock is held but `path` does not
    /// exist. `restore` must not call this object. An empty function ends this.
    void watchCompanion(std::string path, std::function<void()> restore);

    /// Whether this object holds the lock of the file in the directory.
    [[nodiscard]] bool isHeld() const;

private:
    [[nodiscard]] bool isInPlace() const { return lock_ && lock_->isAt(path_); }
    [[nodiscard]] RecordLock reacquire();
    void logLost();
    void logReacquired();

    Log& log_;
    mutable std::mutex mutex_;
    std::string directory_;
    std::string path_;
    std::unique_ptr<FileLock> lock_;  // null while another process, or nobody, holds the lock
    bool isLost_ = false;
    std::string companion_;
    std::function<void()> restoreCompanion_;
};

}  // namespace tidewatch::platform
