#pragma once

#include <string>
#include <string_view>

namespace tidewatch {

/// `name`, UTF-8 without a folder, as a file can have it: at most 255 bytes, shortened before its extension
/// by whole characters, and without the byte 0. Any other name is given back as it is.
[[nodiscard]] std::string writableFileName(std::string_view name);

}  // namespace tidewatch
