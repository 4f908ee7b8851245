#pragma once

#include <variant>

#include "base/result.h"

namespace tidewatch::platform {

/// Why something could not be read.
enum class FileErrorKind {
    notFound,          ///< nothing has that name, or what should be above it is no directory
    permissionDenied,  ///< it is there, and the user has no right to it
    unreadable,        ///< anything else: a disk that fails, something that is no file
};

/// The words are the operation, the path and the system's own.
struct FileError : Error {
    FileErrorKind kind = FileErrorKind::unreadable;
};

template <class T>
using FileResult = Result<T, FileError>;

using FileStatus = FileResult<std::monostate>;

}  // namespace tidewatch::platform
