#pragma once

#include <string>
#include <string_view>

#include "base/result.h"

namespace tidewatch::platform {

/// The user's files. Paths are absolute, with '/' between names. Safe from any thread.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    /// The current user's home directory, without a slash at its end.
    [[nodiscard]] virtual std::string homeDirectory() const = 0;

    /// Makes the directory, for its owner only, and what is missing above it. One that exists is a success.
    virtual Outcome createDirectories(const std::string& path) = 0;

    /// The whole content of a file.
    [[nodiscard]] virtual Result<std::string> readWhole(const std::string& path) const = 0;

    /// Puts `content` in the place of the file's, or makes the file, readable by its owner only. After a
    /// success the new content is on the disk; after a failure, or a crash at any moment, the file holds
    /// what it held before. Leaves nothing beside the file when it fails.
    virtual Outcome replaceAtomically(const std::string& path, std::string_view content) = 0;
};

}  // namespace tidewatch::platform
