#pragma once

#include <sys/socket.h>
#include <sys/un.h>

#include <optional>
#include <string>
#include <string_view>

namespace tidewatch::platform {

/// A socket on this machine.
struct LocalSocket {
    sockaddr_un name{};
    socklen_t size = 0;
    bool operator==(const LocalSocket& other) const;
};

/// The socket of a message bus's address such as "unix:path=/run/user/1000/bus"; of several alternatives the
/// first. Nothing for an address that leads to another machine or starts a program.
[[nodiscard]] std::optional<LocalSocket> socketOfBus(std::string_view address);

}  // namespace tidewatch::platform
