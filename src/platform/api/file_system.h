#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "base/result.h"
#include "platform/api/file_error.h"
#include "platform/api/file_info.h"
#include "platform/api/file_reader.h"

namespace tidewatch::platform {

/// Who may write the files of the record.
enum class RecordLock {
    held,           ///< this process, and no other can
    heldByAnother,  ///< another process, which has taken the directory over
};

/// Why a file of the user's could not be written, as far as a user can do something about it.
enum class ExportErrorKind {
    noPermission,
    readOnlyDisk,
    noSpace,
    folderMissing,
    notAFile,  ///< something that is no file has the name
    nameTooLong,
    other,
};

struct ExportError {
    ExportErrorKind kind;
    std::string message;  ///< for the log: the operation, the path and the system's words
};

/// The user's files. Paths are absolute, with '/' between names, and bytes: they need not be UTF-8. Safe from
/// any thread.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    /// The current user's home directory, without a slash at its end.
    [[nodiscard]] virtual std::string homeDirectory() const = 0;

    /// Makes the directory, for its owner only, and what is missing above it. One that exists is a success
    /// and keeps its mode.
    virtual Status createDirectories(const std::string& path) = 0;

    /// The whole content of a file. Only a regular file is read, be it at the end of a link.
    [[nodiscard]] virtual FileResult<std::string> readFile(const std::string& path) const = 0;

    /// Opens a file to be read in pieces from the byte `offset` on, for those of which only a piece fits into
    /// memory or is new. Only a regular file is opened; behind its end there is nothing to be read.
    [[nodiscard]] virtual FileResult<std::unique_ptr<FileReader>> openForReading(
        const std::string& path, std::uint64_t offset) const = 0;

    /// What is found under the path; a symbolic link is followed, and one that leads nowhere is an error.
    [[nodiscard]] virtual FileResult<FileInfo> inspect(const std::string& path) const = 0;

    /// Calls `visit` on this thread for all that is below `directory`, at any depth: a directory before what
    /// it holds, else in no particular order. Symbolic links are found and not followed, except `directory`
    /// itself. What cannot be read, or is removed meanwhile, is skipped and the rest found; only if
    /// `directory` itself cannot be read there is an error. `hidden` files are skipped with all below them.
    /// Memory follows the number of directories, not that of files.
    [[nodiscard]] virtual FileStatus enumerate(const std::string& directory, HiddenFiles hidden,
                                               const FileVisitor& visit) const = 0;

    /// To be asked before a file in `directory`, the data directory, is written. Makes the directory again if
    /// it is gone, with what keeps other instances out of it. If it is another process's by now, nothing in
    /// it may be written; the log was told, once. Costs next to nothing as long as all is in place.
    [[nodiscard]] virtual RecordLock ensureRecordLock(const std::string& directory) = 0;

    /// Puts `content` in the place of the file's, or makes the file, readable by its owner only. After a
    /// success the new content is on the disk; after a failure, or a crash at any moment, the file holds
    /// what it held before. Leaves nothing beside the file when it fails.
    virtual Status replaceAtomically(const std::string& path, std::string_view content) = 0;

    /// Gives the file a name that no other has: its own, ".`mark`-" and the day's date, and a number from 2
    /// up if that is taken. Gives the new name; nothing if there is no file or nothing in it, which stays.
    [[nodiscard]] virtual Result<std::optional<std::string>> setAside(const std::string& path,
                                                                      std::string_view mark) = 0;

    /// Puts `content` into a file of the user's choosing, whose neighbours and mode are the user's too: one
    /// that exists keeps its mode, a new one gets what the user gives to new files. Whole or not at all, as
    /// with replaceAtomically(). Gives nothing after a success.
    [[nodiscard]] virtual std::optional<ExportError> exportFile(const std::string& path,
                                                                std::string_view content) = 0;
};

}  // namespace tidewatch::platform
