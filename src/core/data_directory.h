#pragma once

#include <string>

#include "platform/api/file_system.h"

namespace tidewatch {

/// Where all data files lie: ".tidewatch" directly under the home directory. Need not exist yet.
[[nodiscard]] inline std::string dataDirectory(const platform::FileSystem& files) {
    return files.homeDirectory() + "/.tidewatch";
}

}  // namespace tidewatch
