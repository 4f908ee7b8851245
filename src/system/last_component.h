#pragma once

#include <string>
#include <string_view>

namespace tidewatch {

/// The name of the file or folder at the absolute `path`; "/" for the root.
[[nodiscard]] inline std::string lastComponent(std::string_view path) {
    while (path.size() > 1 && path.ends_with('/')) path.remove_suffix(1);
    if (path == "/") return "/";
    return std::string(path.substr(path.rfind('/') + 1));
}

}  // namespace tidewatch
