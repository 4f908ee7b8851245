#pragma once

#include <string>

#include "base/result.h"

namespace tidewatch::platform {

/// Creates the directory and missing parents with mode 0700, whatever the umask. Succeeds if it exists, which
/// keeps its mode.
[[nodiscard]] Status makePrivateDirectories(const std::string& path);

/// Removes all permissions of group and others: from a directory and the files in it, or from a single file.
/// Ignores links and files of other users. Failures are ignored.
void restrictDirectory(const std::string& path);
void restrictFile(const std::string& path);

/// Removes what killed processes have left in the data directory: temporary files ("*.json.tmp"), and hidden
/// folders with names of six random characters that contain a socket. The caller must hold the directory's
/// lock.
void removeLeftovers(const std::string& directory);

}  // namespace tidewatch::platform
