#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string_view>

namespace tidewatch::platform {

/// An instant of the disk's, as fine as the disk keeps it.
using FileTime = std::chrono::sys_time<std::chrono::nanoseconds>;

enum class FileKind {
    file,  ///< a regular one
    directory,
    link,   ///< a symbolic one; found only where links are not followed
    other,  ///< a pipe, a socket, a device
};

/// What tells one file from another without reading it.
struct FileInfo {
    /// The same as long as the file exists, whatever its name; another one after it was replaced.
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

/// Something that an enumeration has come upon.
struct FoundFile {
    std::string_view path;  ///< absolute; valid while the visitor runs
    FileInfo info;          ///< of a symbolic link itself, not of what it leads to
    FileTime accessed;      ///< when it was last read, as far as the disk keeps count
};

/// What an enumeration is to do after something that it has found.
enum class VisitAction {
    proceed,  ///< go on, into the directory if it is one
    skip,     ///< go on, past the directory and all below it
    stop,     ///< find nothing more
};

using FileVisitor = std::function<VisitAction(const FoundFile& found)>;

/// What an enumeration does about names that begin with a dot.
enum class HiddenFiles { included, skipped };

}  // namespace tidewatch::platform
