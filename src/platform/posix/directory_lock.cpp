#include "platform/posix/directory_lock.h"

#include <unistd.h>

#include <utility>

#include "platform/posix/private_directory.h"

namespace tidewatch::platform {

FileLock::State DirectoryLock::take(const std::string& directory) {
    const std::lock_guard guard(mutex_);
    directory_ = directory;
    path_ = directory + "/lock";
    auto lock = std::make_unique<FileLock>(path_);
    const auto state = lock->state();
    if (state == FileLock::State::heldByAnother) return state;
    restrictDirectory(directory);
    if (state == FileLock::State::held) {
        removeLeftovers(directory);
        lock_ = std::move(lock);
    }
    return state;
}

RecordLock DirectoryLock::ensure() {
    const std::lock_guard guard(mutex_);
    if (directory_.empty()) return RecordLock::held;
    if (!isInPlace() && reacquire() == RecordLock::heldByAnother) return RecordLock::heldByAnother;
    if (restoreCompanion_ && lock_ && ::access(companion_.c_str(), F_OK) != 0) restoreCompanion_();
    return RecordLock::held;
}

void DirectoryLock::watchCompanion(std::string path, std::function<void()> restore) {
    const std::lock_guard guard(mutex_);
    companion_ = std::move(path);
    restoreCompanion_ = std::move(restore);
}

bool DirectoryLock::isHeld() const {
    const std::lock_guard guard(mutex_);
    return isInPlace();
}

RecordLock DirectoryLock::reacquire() {
    // A failure shows in the write that follows.
    static_cast<void>(makePrivateDirectories(directory_));
    auto lock = std::make_unique<FileLock>(path_);
    switch (lock->state()) {
        case FileLock::State::held:
            lock_ = std::move(lock);
            logReacquired();
            return RecordLock::held;
        case FileLock::State::heldByAnother:
            lock_.reset();
            logLost();
            return RecordLock::heldByAnother;
        case FileLock::State::unavailable:
            break;
    }
    // As at start-up: better a record without a lock than none.
    return isLost_ ? RecordLock::heldByAnother : RecordLock::held;
}

void DirectoryLock::logLost() {
    if (std::exchange(isLost_, true)) return;
    log_.warning("Tidewatch: another instance has taken " + directory_ +
                 "; nothing is written there until that one ends");
}

void DirectoryLock::logReacquired() {
    if (!std::exchange(isLost_, false)) return;
    log_.info("Tidewatch: the other instance is gone; the record is written to " + directory_ + " again");
}

}  // namespace tidewatch::platform
