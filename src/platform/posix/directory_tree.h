#pragma once

#include <string>

#include "platform/api/file_error.h"
#include "platform/api/file_info.h"

namespace tidewatch::platform {

/// See FileSystem::enumerate(). One open directory at a time, whatever the depth; what lies deeper than a
/// path can be long is skipped.
[[nodiscard]] FileStatus enumerateDirectoryTree(const std::string& root, HiddenFiles hidden,
                                                const FileVisitor& visit);

}  // namespace tidewatch::platform
