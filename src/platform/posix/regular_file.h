#pragma once

#include <cstddef>
#include <functional>
#include <limits>
#include <string>

#include "platform/api/file_error.h"
#include "platform/posix/file_descriptor.h"

namespace tidewatch::platform {

/// For files of unlimited size, such as this program's own record.
inline constexpr std::size_t anySize = std::numeric_limits<std::size_t>::max();

/// Opens a file of any origin for reading. Only opens regular files, following links: a named pipe would
/// block, a device may be endless. Thread-safe.
[[nodiscard]] FileResult<FileDescriptor> openRegularFile(const std::string& path);

/// The whole content of such a file. More than `maxSize` bytes are an error and are not read. Thread-safe.
[[nodiscard]] FileResult<std::string> readRegularFile(const std::string& path, std::size_t maxSize);

/// The limits of a folder walk.
struct WalkLimits {
    int depth;            ///< nesting below the first folder
    std::size_t entries;  ///< total number of names
};

/// Walks a folder recursively. Links to folders are followed, but each folder is entered once, so that cyclic
/// links terminate. Names are in no particular order; what cannot be read is skipped. Thread-safe.
///
/// Calls `enter(path, way)` for each folder before it is read, the first one included; returning false skips
/// the folder. Calls `visit(path, way, name)` for everything in it that is no folder. `way` is the folder's
/// path relative to the first one, with a trailing slash. Returns false if a limit ended the walk.
bool walkFolders(const std::string& path, WalkLimits limits,
                 const std::function<bool(const std::string& path, const std::string& way)>& enter,
                 const std::function<void(const std::string& path, const std::string& way,
                                          const std::string& name)>& visit);

}  // namespace tidewatch::platform
