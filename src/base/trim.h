#pragma once

#include <string_view>

namespace tidewatch {

/// `text`, UTF-8, without the white space and line ends at both of its ends: everything that Unicode counts
/// as a blank (the wide and the unbreakable ones too), tabs, and every kind of line end. What is not valid
/// UTF-8 counts as no white space.
[[nodiscard]] std::string_view trimmed(std::string_view text);

/// The same, but for line ends, which stay.
[[nodiscard]] std::string_view trimmedOfBlanks(std::string_view text);

}  // namespace tidewatch
