#pragma once

#include <sys/socket.h>
#include <sys/un.h>

#include <optional>
#include <string>
#include <string_view>

namespace tidewatch::platform {

/// The address of a Unix socket.
struct LocalSocket {
    sockaddr_un name{};
    socklen_t size = 0;
    bool operator==(const LocalSocket& other) const;
};

/// Parses a message bus address such as "unix:path=/run/user/1000/bus"; of several alternatives the first
/// usable one. Returns nullopt for an address that is not a Unix socket.
[[nodiscard]] std::optional<LocalSocket> socketOfBus(std::string_view address);

}  // namespace tidewatch::platform
