#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "base/result.h"
#include "platform/api/byte_sink.h"
#include "platform/api/file_error.h"
#include "platform/api/file_info.h"
#include "platform/api/file_reader.h"

namespace tidewatch::platform {

/// Whether this process may write the record.
enum class RecordLock {
    held,           ///< this process holds the lock
    heldByAnother,  ///< another process has taken over the directory
};

/// Why an export failed, in categories that a user can act on.
enum class ExportErrorKind {
    noPermission,
    readOnlyDisk,
    noSpace,
    folderMissing,
    notAFile,  ///< the path is not a regular file
    nameTooLong,
    other,
};

struct ExportError {
    ExportErrorKind kind;
    std::string message;  ///< for the log: the operation, the path and the system's error text
};

/// The user's files. Paths are absolute, '/'-separated byte strings that need not be UTF-8. Thread-safe.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    /// The current user's home directory, without a trailing slash.
    [[nodiscard]] virtual std::string homeDirectory() const = 0;

    /// Creates the directory, accessible to its owner only, and missing parents. Succeeds if it exists, which
    /// keeps its mode.
    virtual Status createDirectories(const std::string& path) = 0;

    /// The whole content of a regular file; links are followed.
    [[nodiscard]] virtual FileResult<std::string> readFile(const std::string& path) const = 0;

    /// Opens a regular file for reading from the byte `offset` on: for files too large for memory, or of
    /// which only the end is new. An offset beyond the end reads nothing.
    [[nodiscard]] virtual FileResult<std::unique_ptr<FileReader>> openForReading(
        const std::string& path, std::uint64_t offset) const = 0;

    /// The metadata of a path; symbolic links are followed, a dangling one is an error.
    [[nodiscard]] virtual FileResult<FileInfo> inspect(const std::string& path) const = 0;

    /// Calls `visit` for everything below `directory`, recursively: a directory before its entries, otherwise
    /// in no particular order. One call at a time, but not always on this thread: a large tree is read by
    /// two. Symbolic links are reported but not followed, except `directory` itself. What cannot be read, or
    /// is removed meanwhile, is skipped; it is an error only if `directory` itself cannot be read. A skipped
    /// hidden directory is skipped with everything below it. Memory use depends on the number of directories,
    /// not of files.
    [[nodiscard]] virtual FileStatus enumerate(const std::string& directory, HiddenFiles hidden,
                                               const FileVisitor& visit) const = 0;

    /// Must be called before a file in `directory`, the data directory, is written. Recreates the directory
    /// and its lock if they are gone. If another process holds the lock, nothing in it may be written; this
    /// is logged once. Cheap while the lock is in place.
    [[nodiscard]] virtual RecordLock ensureRecordLock(const std::string& directory) = 0;

    /// Replaces the file's content, or creates the file, readable by its owner only. On success the new
    /// content is synced to disk; on failure, or after a crash at any moment, the file is unchanged. Leaves
    /// no temporary file behind on failure. Returns what inspect() returns for the file until somebody else
    /// changes or replaces it.
    virtual Result<FileInfo> replaceAtomically(const std::string& path, const ContentWriter& content) = 0;
    Result<FileInfo> replaceAtomically(const std::string& path, std::string_view content) {
        return replaceAtomically(path, [content](ByteSink& sink) { sink.append(content); });
    }

    /// Renames the file to an unused name: its own, ".`mark`-" and today's date, and a number from 2 up if
    /// that is taken. Returns the new name; nullopt if the file is missing or empty, which leaves it in
    /// place.
    [[nodiscard]] virtual Result<std::optional<std::string>> setAside(const std::string& path,
                                                                      std::string_view mark) = 0;

    /// Writes `content` to a file of the user's choice: an existing one keeps its mode, a new one obeys the
    /// umask. Atomic like replaceAtomically(). Returns nullopt on success.
    [[nodiscard]] virtual std::optional<ExportError> exportFile(const std::string& path,
                                                                std::string_view content) = 0;
};

}  // namespace tidewatch::platform
