#pragma once

#include "platform/api/file_system.h"

namespace tidewatch::platform {

class DirectoryLock;

/// Files of a POSIX system. Directories it makes are for the owner alone (0700), and so are files of the
/// record (0600), whatever the umask.
///
/// A file is replaced by writing its successor beside it, bringing that to the disk, renaming it, and
/// bringing the directory to the disk. A symbolic link is followed: what it points to is replaced, or made.
/// What is no file, such as a device, is never replaced. Messages of errors are the operation, the path and
/// the system's words.
///
/// The successor of a file of the record has its name with ".tmp" behind: a process killed in between leaves
/// one such file at most, which the next write replaces. That of an export has a name nobody can foresee,
/// since its neighbours are not ours.
///
/// Safe from any thread, as long as no two of them replace the same file at once.
class PosixFileSystem final : public FileSystem {
public:
    /// The home directory is $HOME, else what the user database holds. `lock`, if there is one, keeps other
    /// instances off the record and must outlive this object.
    explicit PosixFileSystem(DirectoryLock* lock = nullptr);

    /// Another home directory, absolute.
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
    Status replaceAtomically(const std::string& path, std::string_view content) override;

    /// Of a link, what it leads to is set aside, in its own directory.
    [[nodiscard]] Result<std::optional<std::string>> setAside(const std::string& path,
                                                              std::string_view mark) override;

    [[nodiscard]] std::optional<ExportError> exportFile(const std::string& path,
                                                        std::string_view content) override;

private:
    const std::string home_;
    DirectoryLock* const lock_;
};

}  // namespace tidewatch::platform
