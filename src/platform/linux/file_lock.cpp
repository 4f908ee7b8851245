#include "platform/linux/file_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace tidewatch::platform {

FileLock::FileLock(const std::string& path)
    : descriptor_(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)), state_(State::unavailable) {
    if (descriptor_ < 0) return;
    if (::flock(descriptor_, LOCK_EX | LOCK_NB) == 0) {
        state_ = State::held;
    } else if (errno == EWOULDBLOCK) {
        state_ = State::heldByAnother;
    }
}

FileLock::~FileLock() {
    if (descriptor_ >= 0) ::close(descriptor_);
}

}  // namespace tidewatch::platform
