#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tidewatch::platform {

/// The parts of a D-Bus message that the proxy needs.
struct BusMessage {
    enum class Type : std::uint8_t { call = 1, reply = 2, error = 3, signal = 4 };

    Type type = Type::signal;
    bool wantsReply = false;
    std::uint32_t serial = 0;
    std::uint32_t answers = 0;  ///< the serial of the call that this replies to
    std::string interface;
    std::string member;
    std::string destination;
    std::string sender;

    /// The size in bytes of the message at the front of `bytes`; 0 if more data is needed, nullopt if it is
    /// not a message.
    [[nodiscard]] static std::optional<std::size_t> sizeAtFront(std::string_view bytes);

    /// Parses one complete message. Returns nullopt if it is malformed.
    [[nodiscard]] static std::optional<BusMessage> parse(std::string_view bytes);

    /// The string of a complete message whose body is one string; empty for any other body.
    [[nodiscard]] static std::string_view text(std::string_view bytes);
};

/// A complete message: the error `name`, with a human-readable text, in reply to the call `serial`.
[[nodiscard]] std::string busError(std::uint32_t serial, std::string_view name, std::string_view words);

/// A complete message: `sender`'s reply of one string to the call `serial`.
[[nodiscard]] std::string busReply(std::uint32_t serial, std::string_view sender, std::string_view text);

}  // namespace tidewatch::platform
