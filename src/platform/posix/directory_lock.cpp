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
    narrowDirectory(directory);
    if (state == FileLock::State::held) {
        sweepLeftovers(directory);
        lock_ = std::move(lock);
    }
    return state;
}

RecordHold DirectoryLock::ensure() {
    const std::lock_guard guard(mutex_);
    if (directory_.empty()) return RecordHold::ours;
    if (!isInPlace() && takeAgain() == RecordHold::anothers) return RecordHold::anothers;
    if (restoreCompanion_ && lock_ && ::access(companion_.c_str(), F_OK) != 0) restoreCompanion_();
    return RecordHold::ours;
}

void DirectoryLock::lookAfter(std::string path, std::function<void()> restore) {
    const std::lock_guard guard(mutex_);
    companion_ = std::move(path);
    restoreCompanion_ = std::move(restore);
}

bool DirectoryLock::isHeld() const {
    const std::lock_guard guard(mutex_);
    return isInPlace();
}

RecordHold DirectoryLock::takeAgain() {
    // What cannot be made shows in the write that follows.
    static_cast<void>(makePrivateDirectories(directory_));
    auto lock = std::make_unique<FileLock>(path_);
    switch (lock->state()) {
        case FileLock::State::held:
            lock_ = std::move(lock);
            tellThatItIsOursAgain();
            return RecordHold::ours;
        case FileLock::State::heldByAnother:
            lock_.reset();
            tellThatItIsAnothers();
            return RecordHold::anothers;
        case FileLock::State::unavailable:
            break;
    }
    // As at a start: better a record without a lock than none.
    return isAnothers_ ? RecordHold::anothers : RecordHold::ours;
}

void DirectoryLock::tellThatItIsAnothers() {
    if (std::exchange(isAnothers_, true)) return;
    log_.warning("Tidewatch: another instance has taken " + directory_ +
                 "; nothing is written there until that one ends");
}

void DirectoryLock::tellThatItIsOursAgain() {
    if (!std::exchange(isAnothers_, false)) return;
    log_.info("Tidewatch: the other instance is gone; the record is written to " + directory_ + " again");
}

}  // namespace tidewatch::platform
