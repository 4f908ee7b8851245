#pragma once

#include <string>

namespace tidewatch::platform {

/// Renames a file, but replaces nothing. Returns false, with EEXIST in errno, if the name `to` is taken.
[[nodiscard]] bool renameToFree(const std::string& from, const std::string& to);

}  // namespace tidewatch::platform
