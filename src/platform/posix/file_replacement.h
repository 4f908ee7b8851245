#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <string_view>

namespace tidewatch::platform {

/// The step at which replacing a file failed, and the error number of the system.
struct ReplacementFailure {
    std::string_view step;
    std::string path;
    int code;

    /// The operation, the path and the system's words.
    [[nodiscard]] std::string message() const;
};

/// Where a file lies that is reached through symbolic links, also one that is not there yet; the path itself
/// if it is no link, or if the links lead nowhere.
[[nodiscard]] std::string resolvedLinks(const std::string& path);

/// Writes `content` to the open `descriptor` of the new file `successor`, brings it to the disk, gives it the
/// name `target`, and brings the directory to the disk. If anything fails before the new name is given, the
/// successor is removed. Takes the descriptor. A failure of the directory alone is none: either state of the
/// file is whole.
[[nodiscard]] std::optional<ReplacementFailure> replaceWith(int descriptor, const std::string& successor,
                                                            const std::string& target,
                                                            std::string_view content);

}  // namespace tidewatch::platform
