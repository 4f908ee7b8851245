#pragma once

#include <variant>

#include "base/result.h"

namespace tidewatch::platform {

/// Why something could not be read.
enum class FileFault {
    absent,     ///< nothing has that name, or what should be above it is no directory
    forbidden,  ///< it is there, and the user has no right to it
    broken,     ///< anything else: a disk that fails, something that is no file
};

/// The words are the operation, the path and the system's own.
struct FileError : Error {
    FileFault fault = FileFault::broken;
};

template <class T>
using FileResult = Result<T, FileError>;

using FileOutcome = FileResult<std::monostate>;

}  // namespace tidewatch::platform
