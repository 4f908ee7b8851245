#pragma once

#include <optional>
#include <string_view>

namespace tidewatch {

/// Parses the whole of `text` as a decimal number with '.' and an optional exponent ("-0.5", "1e3"),
/// independent of the locale. Returns nullopt for anything else: white space, hexadecimal digits, "inf",
/// "nan", and a number too large for a double. One too small for a double is 0.
[[nodiscard]] std::optional<double> parseReal(std::string_view text);

}  // namespace tidewatch
