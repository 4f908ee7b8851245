#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string_view>

#include "claude/token_counts.h"

namespace tidewatch {

/// The members of a log line that are read, each the last of its name; nullopt without it, or if its value is
/// of another type.
struct LineMembers {
    /// What stands in the message, or at the top level.
    struct Holder {
        std::optional<TokenCounts> usage;
        std::optional<std::string_view> model;
        bool operator==(const Holder&) const = default;
    };

    std::optional<std::string_view> timestamp;
    std::optional<std::string_view> createdAt;
    Holder top;
    std::optional<Holder> message;
    bool operator==(const LineMembers&) const = default;
};

/// The same as ==, for a literal and without a call: a log has many keys.
template <std::size_t Size>
[[nodiscard]] bool isKey(std::string_view key, const char (&literal)[Size]) {
    constexpr auto length = Size - 1;
    return key.size() == length && std::memcmp(key.data(), literal, length) == 0;
}

/// The count in `tokens` that a key of the usage means; null for another key.
[[nodiscard]] inline std::int64_t* countOf(std::string_view key, TokenCounts& tokens) {
    if (isKey(key, "input_tokens")) return &tokens.input;
    if (isKey(key, "output_tokens")) return &tokens.output;
    if (isKey(key, "cache_creation_input_tokens")) return &tokens.cacheWrite;
    if (isKey(key, "cache_read_input_tokens")) return &tokens.cacheRead;
    return nullptr;
}

}  // namespace tidewatch
