#pragma once

#include <cstddef>
#include <string_view>

namespace tidewatch {

/// The first position at or after `from` where a key "usage" may stand in these lines of JSON; npos if there
/// is none. Finds every such key, also one spelled with escapes, and little else: in a text inside a string
/// the quotes around it would be escaped.
[[nodiscard]] std::size_t findUsage(std::string_view lines, std::size_t from);

}  // namespace tidewatch
