#include "platform/freedesktop/bus_address.h"

#include <charconv>
#include <cstddef>
#include <cstring>

namespace tidewatch::platform {

namespace {

constexpr std::string_view transport = "unix:";

std::string percentDecoded(std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned code = 0;
        const auto* digits = text.data() + i + 1;
        if (text[i] == '%' && i + 2 < text.size() &&
            std::from_chars(digits, digits + 2, code, 16).ptr == digits + 2) {
            plain += static_cast<char>(code);
            i += 2;
        } else {
            plain += text[i];
        }
    }
    return plain;
}

/// `name` begins with a zero byte for one in the abstract namespace.
std::optional<LocalSocket> localSocket(const std::string& name) {
    LocalSocket socket;
    if (name.empty() || name.size() >= sizeof socket.name.sun_path) return std::nullopt;
    socket.name.sun_family = AF_UNIX;
    std::memcpy(socket.name.sun_path, name.data(), name.size());
    const bool abstract = name.front() == '\0';
    socket.size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + name.size() + (abstract ? 0 : 1));
    return socket;
}

std::optional<LocalSocket> socketOfOne(std::string_view address) {
    if (!address.starts_with(transport)) return std::nullopt;
    address.remove_prefix(transport.size());
    while (!address.empty()) {
        const auto end = std::min(address.find(','), address.size());
        const auto pair = address.substr(0, end);
        if (pair.starts_with("path=")) return localSocket(percentDecoded(pair.substr(5)));
        if (pair.starts_with("abstract=")) return localSocket('\0' + percentDecoded(pair.substr(9)));
        address.remove_prefix(std::min(end + 1, address.size()));
    }
    return std::nullopt;
}

}  // namespace

bool LocalSocket::operator==(const LocalSocket& other) const {
    return size == other.size && std::memcmp(&name, &other.name, size) == 0;
}

std::optional<LocalSocket> socketOfBus(std::string_view address) {
    while (!address.empty()) {
        const auto end = std::min(address.find(';'), address.size());
        if (auto socket = socketOfOne(address.substr(0, end))) return socket;
        address.remove_prefix(std::min(end + 1, address.size()));
    }
    return std::nullopt;
}

}  // namespace tidewatch::platform
