#pragma once

#include "platform/api/file_system.h"

namespace tidewatch::platform {

class DirectoryLock;

/// Files of a POSIX system. Directories are created with mode 0700 and files of the record with 0600,
/// whatever the umask.
///
/// A file is replaced by writing a temporary file beside it, syncing and renaming that, and syncing the
/// directory. Symbolic links are followed: their target is replaced or created. What is not a regular file,
/// such as a device, is never replaced. Error messages consist of the operation, the path and the system's
/// error text.
///
/// The temporary file of the record has the suffix ".tmp": a killed process leaves at most one, which the
/// next write replaces. That of an export has an unpredictable name, because it is created in a directory of
/// the user's.
///
/// Thread-safe, unless two threads replace the same file at once.
class PosixFileSystem final : public FileSystem {
public:
    /// The home directory is $HOME, else from the user database. `lock`, if not null, keeps other instances
    /// away from the record and must outlive this object.
    explicit PosixFileSystem(DirectoryLock* lock = nullptr);

    /// With another home directory, absolute.
    explicit PosixFileSystem(std::string homeDirectory, DirectoryLock* lock = nullptr);

    [[nodiscard]] std::string homeDirectory() const override { return home_; }
    Status createDirectories(const std::string& path) override;
    [[nodiscard]] FileResult<std::string> readFile(const std::string& path) const override;
    [[nodiscard]] FileResult<std::unique_ptr<FileReader>> openForReading(const std::string& path,
                                                                         std::uint64_t offset) const override;
    [[nodiscard]] FileResult<FileInfo> inspect(const std::string& path) const override;
    [[nodiscard]] FileStatus enumerate(const std::string& directory, HiddenFiles hidden,
                                       const FileVisitor& visit) const override;
    [[nodiscard]] RecordLock ensureRecordLock(const std::string& directory) override;
    using FileSystem::replaceAtomically;
    Result<FileInfo> replaceAtomically(const std::string& path, const ContentWriter& content) override;

    /// Of a link the target is set aside, in its own directory.
    [[nodiscard]] Result<std::optional<std::string>> setAside(const std::string& path,
                                                              std::string_view mark) override;

    [[nodiscard]] std::optional<ExportError> exportFile(const std::string& path,
                                                        std::string_view content) override;

private:
    const std::string home_;
    DirectoryLock* const lock_;
};

}  // namespace tidewatch::platform
