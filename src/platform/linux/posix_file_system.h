#pragma once

#include "platform/api/file_system.h"

namespace tidewatch::platform {

/// Files of a POSIX system. Directories it makes are for the owner alone (0700), and so are files (0600).
///
/// A file is replaced by writing its successor beside it under the same name with ".tmp" behind, bringing
/// that to the disk, and renaming it. The directory itself is not brought to the disk: after a power failure
/// the file is whole, but it may be the one before. The name is fixed, so that a process killed in between
/// leaves one such file at most, which the next write replaces. A symbolic link is followed: what it points
/// to is replaced. Messages of errors are the operation, the path and the system's words. Safe from any
/// thread, as long as no two of them replace the same file at once.
class PosixFileSystem final : public FileSystem {
public:
    /// The home directory is $HOME, else what the user database holds.
    PosixFileSystem();

    /// Another home directory, absolute.
    explicit PosixFileSystem(std::string homeDirectory);

    [[nodiscard]] std::string homeDirectory() const override { return home_; }
    Outcome createDirectories(const std::string& path) override;
    [[nodiscard]] Result<std::string> readWhole(const std::string& path) const override;
    Outcome replaceAtomically(const std::string& path, std::string_view content) override;

private:
    const std::string home_;
};

}  // namespace tidewatch::platform
