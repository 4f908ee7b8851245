#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tidewatch {

// Texts are UTF-8. A character is a grapheme cluster: a letter with its accents, a flag, a family emoji.
// Clusters are split after 32 code points. Each byte of invalid UTF-8 is a character.

/// The first `count` characters of `text`, or all of it if it is shorter.
[[nodiscard]] std::string_view firstCharacters(std::size_t count, std::string_view text);

/// The longest prefix of `text` of at most `bytes` bytes that does not split a character.
[[nodiscard]] std::string_view charactersWithin(std::size_t bytes, std::string_view text);

/// `text` on one line: each run of white space and control characters becomes one space, leading and trailing
/// ones are removed.
[[nodiscard]] std::string onOneLine(std::string_view text);

}  // namespace tidewatch
