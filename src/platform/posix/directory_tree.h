#pragma once

#include <string>

#include "platform/api/file_error.h"
#include "platform/api/file_info.h"

namespace tidewatch::platform {

/// See FileSystem::enumerate(). Keeps one directory a thread open at a time, whatever the depth; skips paths
/// longer than PATH_MAX.
[[nodiscard]] FileStatus enumerateDirectoryTree(const std::string& root, HiddenFiles hidden,
                                                const FileVisitor& visit);

}  // namespace tidewatch::platform
