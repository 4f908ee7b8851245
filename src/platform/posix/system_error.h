#pragma once

#include <fmt/format.h>

#include <cerrno>
#include <string>
#include <string_view>

#include "base/result.h"
#include "platform/api/file_error.h"
#include "platform/posix/errno_text.h"

namespace tidewatch::platform {

/// The error of the system call that has just failed: the operation, the path and errno's text.
[[nodiscard]] inline Error systemError(std::string_view operation, const std::string& path) {
    return {fmt::format("{} {}: {}", operation, path, errnoText(errno))};
}

/// The same for a read operation, with its kind.
[[nodiscard]] inline FileError fileError(std::string_view operation, const std::string& path) {
    const int code = errno;
    auto kind = FileErrorKind::unreadable;
    if (code == ENOENT || code == ENOTDIR) kind = FileErrorKind::notFound;
    if (code == EACCES || code == EPERM) kind = FileErrorKind::permissionDenied;
    return {systemError(operation, path), kind};
}

}  // namespace tidewatch::platform
