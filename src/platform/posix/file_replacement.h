#pragma once

#include <sys/types.h>

#include <string>
#include <string_view>

#include "base/result.h"
#include "platform/api/byte_sink.h"
#include "platform/api/file_info.h"

namespace tidewatch::platform {

/// The step at which replacing a file failed, and the error number of the system.
struct ReplacementFailure {
    std::string_view step;
    std::string path;
    int code;

    /// The operation, the path and the system's error text.
    [[nodiscard]] std::string message() const;
};

/// Resolves symbolic links, also if the target does not exist yet. Returns `path` if it is no link, or if the
/// links cannot be resolved.
[[nodiscard]] std::string resolvedLinks(const std::string& path);

/// Writes `content` to the open `descriptor` of the temporary file `successor`, syncs it, renames it to
/// `target`, and syncs the directory. On failure before the rename the temporary file is removed. Takes
/// ownership of the descriptor. A failure to sync the directory is ignored: either state of the file is
/// complete. Returns the information about the new file in its place, or, if it was replaced already, as it
/// was before the rename.
Result<FileInfo, ReplacementFailure> replaceWith(int descriptor, const std::string& successor,
                                                 const std::string& target, const ContentWriter& content);

}  // namespace tidewatch::platform
