#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tidewatch {

// Texts are UTF-8. A character is what a reader takes for one: a letter with its accents, a flag, a family of
// emoji. Of a letter with marks without end each 32 code points count as one. A byte that is not valid UTF-8
// is a character of its own.

/// The beginning of `text` that has `count` characters; all of it if it has no more.
[[nodiscard]] std::string_view firstCharacters(std::size_t count, std::string_view text);

/// The longest beginning of `text` that takes at most `bytes` bytes and cuts no character.
[[nodiscard]] std::string_view charactersWithin(std::size_t bytes, std::string_view text);

/// `text` on one line: each run of blanks, line ends and control characters is one blank, and there is none
/// at either end.
[[nodiscard]] std::string onOneLine(std::string_view text);

}  // namespace tidewatch
