#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string_view>

namespace tidewatch::platform {

/// A file timestamp, at the file system's resolution.
using FileTime = std::chrono::sys_time<std::chrono::nanoseconds>;

enum class FileKind {
    file,  ///< a regular file
    directory,
    link,   ///< a symbolic link; reported only where links are not followed
    other,  ///< a pipe, a socket, a device
};

/// A file's metadata.
struct FileInfo {
    /// Stays the same while the file exists, even if renamed; differs after it is replaced.
    struct Identity {
        std::uint64_t device = 0;
        std::uint64_t inode = 0;
        bool operator==(const Identity&) const = default;
    };

    FileKind kind = FileKind::file;
    std::uint64_t size = 0;  ///< bytes
    FileTime modified;       ///< of the content
    Identity identity;
    bool operator==(const FileInfo&) const = default;
};

/// One entry found by FileSystem::enumerate().
struct FoundFile {
    std::string_view path;         ///< absolute; valid during the visitor's call
    FileInfo info;                 ///< of a symbolic link itself, not of its target
    FileTime accessed;             ///< last access; the epoch if the file system does not know it
    bool accessIsRecorded = true;  ///< false if the volume is mounted without recording accesses
};

/// What the enumeration does after an entry.
enum class VisitAction {
    proceed,  ///< continue, descending into a directory
    skip,     ///< continue, without descending
    stop,     ///< end the enumeration
};

using FileVisitor = std::function<VisitAction(const FoundFile& found)>;

/// Whether an enumeration reports names that begin with a dot.
enum class HiddenFiles { included, skipped };

}  // namespace tidewatch::platform
