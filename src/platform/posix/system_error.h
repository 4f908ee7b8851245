#pragma once

#include <fmt/format.h>

#include <cerrno>
#include <string>
#include <string_view>

#include "base/result.h"
#include "platform/api/file_error.h"
#include "platform/posix/errno_text.h"

namespace tidewatch::platform {

/// Why the system call that has just failed did so: the operation, the path and the system's words.
[[nodiscard]] inline Error systemError(std::string_view operation, const std::string& path) {
    return {fmt::format("{} {}: {}", operation, path, errnoText(errno))};
}

/// The same of a call that was to read something.
[[nodiscard]] inline FileError fileError(std::string_view operation, const std::string& path) {
    const int code = errno;
    auto kind = FileErrorKind::unreadable;
    if (code == ENOENT || code == ENOTDIR) kind = FileErrorKind::notFound;
    if (code == EACCES || code == EPERM) kind = FileErrorKind::permissionDenied;
    return {systemError(operation, path), kind};
}

}  // namespace tidewatch::platform
