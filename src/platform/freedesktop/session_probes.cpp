#include "platform/freedesktop/session_probes.h"

#include <fmt/format.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <optional>

#include "platform/freedesktop/bus_address.h"
#include "platform/posix/file_descriptor.h"

namespace tidewatch::platform {

namespace {

/// The first message of either side on an ICE connection: "little endian".
constexpr std::string_view byteOrder{"\0\1\0\0\0\0\0\0", 8};

/// Whether the socket accepts a connection immediately and responds to `greeting`.
bool answers(const std::optional<LocalSocket>& where, std::string_view greeting,
             std::chrono::milliseconds timeout) {
    if (!where) return false;
    const FileDescriptor connection(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (::connect(connection.get(), reinterpret_cast<const sockaddr*>(&where->name), where->size) != 0)
        return false;
    if (::send(connection.get(), greeting.data(), greeting.size(), MSG_NOSIGNAL) < 0) return false;
    pollfd answer{connection.get(), POLLIN, 0};
    char first = 0;
    return ::poll(&answer, 1, static_cast<int>(timeout.count())) == 1 &&
           ::recv(connection.get(), &first, 1, 0) == 1;
}

/// Parses "local/host:@/tmp/.ICE-unix/1" or "unix/host:/tmp/.ICE-unix/1"; nullopt for other transports.
std::optional<LocalSocket> socketOfManager(std::string_view manager) {
    const auto colon = manager.find(':');
    if (colon == std::string_view::npos) return std::nullopt;
    if (!manager.starts_with("local/") && !manager.starts_with("unix/")) return std::nullopt;
    const auto place = manager.substr(colon + 1);
    if (place.starts_with('@')) return socketOfBus(fmt::format("unix:abstract={}", place.substr(1)));
    return socketOfBus(fmt::format("unix:path={}", place));
}

}  // namespace

std::string responsiveSessionManagers(std::string_view managers, std::chrono::milliseconds timeout) {
    std::string answering;
    while (!managers.empty()) {
        const auto end = std::min(managers.find(','), managers.size());
        const auto manager = managers.substr(0, end);
        if (answers(socketOfManager(manager), byteOrder, timeout)) {
            if (!answering.empty()) answering += ',';
            answering += manager;
        }
        managers.remove_prefix(std::min(end + 1, managers.size()));
    }
    return answering;
}

bool isBusResponsive(const std::string& address, std::chrono::milliseconds timeout) {
    // Asks for the supported authentication mechanisms.
    constexpr std::string_view greeting{"\0AUTH\r\n", 7};
    return answers(socketOfBus(address), greeting, timeout);
}

}  // namespace tidewatch::platform
