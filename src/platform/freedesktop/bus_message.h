#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tidewatch::platform {

/// A message of the desktop's message buses, as far as whoever passes it on must know it.
struct BusMessage {
    enum class Type : std::uint8_t { call = 1, reply = 2, error = 3, signal = 4 };

    Type type = Type::signal;
    bool wantsReply = false;
    std::uint32_t serial = 0;
    std::uint32_t answers = 0;  ///< the serial of the call that this is the reply to
    std::string interface;
    std::string member;
    std::string destination;
    std::string sender;

    /// The size in bytes of the message that `bytes` begin with; 0 while too little of it is there to tell,
    /// nothing if it is no message.
    [[nodiscard]] static std::optional<std::size_t> sizeAtFront(std::string_view bytes);

    /// Reads one whole message; nothing if it is damaged.
    [[nodiscard]] static std::optional<BusMessage> parse(std::string_view bytes);

    /// The only text of a whole message whose body is one string; empty for any other body.
    [[nodiscard]] static std::string_view text(std::string_view bytes);
};

/// A whole message: the error `name`, with words for people, as the answer to the call `serial`.
[[nodiscard]] std::string busError(std::uint32_t serial, std::string_view name, std::string_view words);

/// A whole message: the answer of `sender` to the call `serial`, one string.
[[nodiscard]] std::string busReply(std::uint32_t serial, std::string_view sender, std::string_view text);

}  // namespace tidewatch::platform
