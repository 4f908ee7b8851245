#pragma once

#include <optional>
#include <string_view>

namespace tidewatch {

/// The number that the whole of `text` spells in decimal, with '.' before the fraction and an exponent if
/// there is one ("-0.5", "1e3"), whatever the user's language. Returns nullopt for anything else: other words
/// and signs, blanks, hexadecimal digits, and a number too large for a double. One too small for a double is
/// 0.
[[nodiscard]] std::optional<double> parseReal(std::string_view text);

}  // namespace tidewatch
