#pragma once

#include <string>
#include <string_view>

namespace tidewatch {

/// `text`, UTF-8, in lower case, independent of the locale; each code point maps to one code point. Invalid
/// UTF-8 is kept unchanged.
[[nodiscard]] std::string lowerCased(std::string_view text);

}  // namespace tidewatch
