#pragma once

#include <fmt/format.h>

#include <cerrno>
#include <string>
#include <string_view>

#include "base/result.h"
#include "platform/posix/system_words.h"

namespace tidewatch::platform {

/// Why the system call that has just failed did so: the operation, the path and the system's words.
[[nodiscard]] inline Error systemError(std::string_view operation, const std::string& path) {
    return {fmt::format("{} {}: {}", operation, path, systemWords(errno))};
}

}  // namespace tidewatch::platform
