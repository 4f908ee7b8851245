#pragma once

#include <optional>
#include <string>

namespace tidewatch::platform {

/// Folders that a desktop provides for a user's files.
enum class UserFolder { downloads, desktop, documents, videos };

/// Where these folders are. Reads the disk; thread-safe.
class UserFolders {
public:
    virtual ~UserFolders() = default;

    /// The absolute path, without a trailing slash; the folder need not exist. Nullopt if the user has none,
    /// or it is the home directory itself.
    [[nodiscard]] virtual std::optional<std::string> path(UserFolder folder) const = 0;
};

}  // namespace tidewatch::platform
