#pragma once

#include <cstddef>
#include <functional>
#include <limits>
#include <string>

#include "platform/api/file_error.h"
#include "platform/posix/file_descriptor.h"

namespace tidewatch::platform {

/// For files that are as long as they must be, such as this program's own record.
inline constexpr std::size_t anySize = std::numeric_limits<std::size_t>::max();

/// The one way to open a file to be read, whoever put it there. Only a regular file is opened, be it at the
/// end of a link: a named pipe would wait for its writer, a device may have no end. Safe from any thread.
[[nodiscard]] FileResult<FileDescriptor> openRegularFile(const std::string& path);

/// The whole content of such a file. One of more than `maxSize` bytes is an error and is not read beyond
/// them. Safe from any thread.
[[nodiscard]] FileResult<std::string> readRegularFile(const std::string& path, std::size_t maxSize);

/// How far a walk through folders goes at most.
struct WalkLimits {
    int depth;            ///< folders below the first one on the way to a file
    std::size_t entries;  ///< names in all folders together
};

/// Goes through a folder and those below it. A link to a folder counts as one, but each folder is entered
/// once, by whatever way it is reached, so that links in a circle end. Names come in no particular order;
/// what cannot be read is left out. Safe from any thread.
///
/// `enter(path, way)` is told of each folder before it is read, the first one included, and refuses it and
/// all below by giving false; `visit(path, way, name)` is told of everything in it that is no folder. `way`
/// is how the folder is reached from the first, each name with a slash behind it. Gives false where a limit
/// cut the walk short.
bool walkFolders(const std::string& path, WalkLimits limits,
                 const std::function<bool(const std::string& path, const std::string& way)>& enter,
                 const std::function<void(const std::string& path, const std::string& way,
                                          const std::string& name)>& visit);

}  // namespace tidewatch::platform
