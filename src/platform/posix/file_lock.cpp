#include "platform/posix/file_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>

namespace tidewatch::platform {

FileLock::FileLock(const std::string& path)
    : file_(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)) {
    if (!file_.isOpen()) return;
    if (::flock(file_.get(), LOCK_EX | LOCK_NB) == 0) {
        state_ = State::held;
    } else if (errno == EWOULDBLOCK) {
        state_ = State::heldByAnother;
    }
}

bool FileLock::isAt(const std::string& path) const {
    struct stat held {};
    struct stat found {};
    return file_.isOpen() && ::fstat(file_.get(), &held) == 0 && ::stat(path.c_str(), &found) == 0 &&
           held.st_dev == found.st_dev && held.st_ino == found.st_ino;
}

}  // namespace tidewatch::platform
