#pragma once

#include <string>

#include "platform/api/file_system.h"

namespace tidewatch {

/// The directory of all data files: ".tidewatch" in the home directory. It may not exist yet.
[[nodiscard]] inline std::string dataDirectory(const platform::FileSystem& files) {
    return files.homeDirectory() + "/.tidewatch";
}

}  // namespace tidewatch
