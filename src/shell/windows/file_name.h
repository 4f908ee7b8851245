#pragma once

#include <string>
#include <string_view>

namespace tidewatch {

/// Makes a UTF-8 file name valid: at most 255 bytes, shortened before its extension by whole characters, and
/// without zero bytes. Valid names are returned unchanged.
[[nodiscard]] std::string writableFileName(std::string_view name);

}  // namespace tidewatch
