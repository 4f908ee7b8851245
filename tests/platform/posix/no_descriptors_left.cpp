#include "tests/platform/posix/no_descriptors_left.h"

#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>

namespace {

std::atomic<bool> noneLeft = false;
std::atomic<int> refusals = 0;

}  // namespace

// Replaces the C library's.
extern "C" int accept4(int listener, sockaddr* address, socklen_t* size, int flags) {
    if (!noneLeft) return static_cast<int>(::syscall(SYS_accept4, listener, address, size, flags));
    ++refusals;
    errno = EMFILE;
    return -1;
}

namespace tidewatch::test {

NoDescriptorsLeft::NoDescriptorsLeft() {
    refusals = 0;
    noneLeft = true;
}

NoDescriptorsLeft::~NoDescriptorsLeft() {
    noneLeft = false;
}

int NoDescriptorsLeft::refused() const {
    return refusals;
}

}  // namespace tidewatch::test
