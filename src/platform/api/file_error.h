#pragma once

#include <variant>

#include "base/result.h"

namespace tidewatch::platform {

/// Why a file could not be read.
enum class FileErrorKind {
    notFound,          ///< no such file, or a parent is not a directory
    permissionDenied,  ///< it exists, but the user has no permission
    unreadable,        ///< anything else: an I/O error, not a regular file
};

/// The message consists of the operation, the path and the system's error text.
struct FileError : Error {
    FileErrorKind kind = FileErrorKind::unreadable;
};

template <class T>
using FileResult = Result<T, FileError>;

using FileStatus = FileResult<std::monostate>;

}  // namespace tidewatch::platform
