#pragma once

#include <string>

#include "base/result.h"

namespace tidewatch::platform {

/// Makes the directory and what is missing above it, each with mode 0700 whatever the umask. One that exists
/// is a success and keeps its mode.
[[nodiscard]] Status makePrivateDirectories(const std::string& path);

/// Takes all rights from group and others: of a directory that is to be private and of the files in it, or of
/// a single file. What a link leads to is left alone, and so is what belongs to somebody else. What fails
/// stays as it is.
void restrictDirectory(const std::string& path);
void restrictFile(const std::string& path);

/// Removes from the data directory what processes that were killed have left in it: successors of files that
/// were not finished ("*.json.tmp"), and folders of six random characters behind a dot with a socket in them.
/// To be called only by who holds the directory's lock.
void removeLeftovers(const std::string& directory);

}  // namespace tidewatch::platform
