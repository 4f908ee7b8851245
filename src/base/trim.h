#pragma once

#include <string_view>

namespace tidewatch {

/// `text`, UTF-8, without leading and trailing white space: Unicode space separators (wide and non-breaking
/// ones included), tabs and all line breaks. Invalid UTF-8 is not white space.
[[nodiscard]] std::string_view trimmed(std::string_view text);

/// The same, but keeps line breaks.
[[nodiscard]] std::string_view trimmedOfBlanks(std::string_view text);

}  // namespace tidewatch
