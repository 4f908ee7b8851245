#include "platform/posix/reopen_socket.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>

#include "platform/posix/errno_text.h"
#include "platform/posix/resource_shortage.h"

namespace tidewatch::platform {
namespace {

constexpr std::string_view socketName = "reopen.socket";
constexpr std::string_view acknowledgement = "ok";
constexpr int maxPending = 16;

int newSocket() {
    return ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

// The address of the socket in a directory. If the path is too long, it goes through /proc/self/fd of the
// open directory and is valid for this object's lifetime.
class Address final {
public:
    explicit Address(const std::string& directory) : directory_(-1) {
        address_.sun_family = AF_UNIX;
        if (put(ReopenSocket::pathIn(directory))) return;
        directory_ = FileDescriptor(::open(directory.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        put(fmt::format("/proc/self/fd/{}/{}", directory_.get(), socketName));
    }

    [[nodiscard]] const sockaddr* get() const { return reinterpret_cast<const sockaddr*>(&address_); }
    [[nodiscard]] static socklen_t size() { return sizeof(sockaddr_un); }

private:
    bool put(const std::string& path) {
        if (path.size() >= sizeof address_.sun_path) return false;
        std::ranges::copy(path, address_.sun_path);
        return true;
    }

    FileDescriptor directory_;
    sockaddr_un address_{};
};

}  // namespace

std::string ReopenSocket::pathIn(const std::string& directory) {
    return fmt::format("{}/{}", directory, socketName);
}

Result<std::unique_ptr<ReopenSocket>> ReopenSocket::listenIn(const std::string& directory) {
    auto socket = std::make_unique<ReopenSocket>(newSocket());
    const int descriptor = socket->descriptor();
    // The previous owner of the socket is gone: we hold the lock.
    ::unlink(pathIn(directory).c_str());
    const Address address(directory);
    ::fchmod(descriptor, 0600);
    if (::bind(descriptor, address.get(), Address::size()) != 0 || ::listen(descriptor, maxPending) != 0) {
        return Error{errnoText(errno)};
    }
    return socket;
}

Result<FileDescriptor> ReopenSocket::nextRequest() const {
    FileDescriptor request(::accept4(listening_.get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (!request.isOpen() && isResourceShortage(errno)) return Error{errnoText(errno)};
    return request;
}

void ReopenSocket::answer(const FileDescriptor& request) {
    // The peer may not wait for the answer.
    static_cast<void>(::send(request.get(), acknowledgement.data(), acknowledgement.size(), MSG_NOSIGNAL));
}

bool ReopenSocket::askIn(const std::string& directory, std::chrono::milliseconds timeout) {
    const FileDescriptor socket(newSocket());
    const Address address(directory);
    if (::connect(socket.get(), address.get(), Address::size()) != 0) return false;
    pollfd answer{socket.get(), POLLIN, 0};
    if (::poll(&answer, 1, static_cast<int>(timeout.count())) <= 0) return false;
    std::array<char, acknowledgement.size()> said{};
    return ::recv(socket.get(), said.data(), said.size(), 0) > 0;
}

}  // namespace tidewatch::platform
