#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <string>

#include "platform/api/file_system.h"
#include "platform/api/log.h"
#include "platform/posix/file_lock.h"

namespace tidewatch::platform {

/// Keeps other processes from writing to the data directory: whoever has locked the file "lock" in it may
/// write. The lock ends with this object, and with the process, however that ends. Safe from any thread.
///
/// While it is held the file or the whole directory may be removed, and a new start would then find nothing
/// in its way; so the lock is looked after before each write. If another process was quicker, the directory
/// is that one's: both count the same seconds, so nothing is lost but what was not written before the other
/// one started. Once the other one has ended, the directory is taken back.
class DirectoryLock final {
public:
    /// `log` must outlive this object.
    explicit DirectoryLock(Log& log) : log_(log) {}

    /// Locks `directory`. What is in it is made private and, under the lock, freed from leftovers.
    [[nodiscard]] FileLock::State take(const std::string& directory);

    /// To be called before a write. Makes the directory and the lock again where they are gone.
    [[nodiscard]] RecordLock ensure();

    /// From now on `restore` is called by ensure(), on its thread, when the lock is held and there is nothing
    /// at `path`. It must not call this object. An empty function ends that.
    void watchCompanion(std::string path, std::function<void()> restore);

    /// Whether what lies in the directory is locked by this object.
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
    std::unique_ptr<FileLock> lock_;  // none while another process, or nobody, has the lock
    bool isLost_ = false;
    std::string companion_;
    std::function<void()> restoreCompanion_;
};

}  // namespace tidewatch::platform
