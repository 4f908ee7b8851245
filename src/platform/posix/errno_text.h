#pragma once

#include <string.h>

#include <string>

namespace tidewatch::platform {

/// What the system calls an error number, in English whatever the user's language.
[[nodiscard]] inline std::string errnoText(int code) {
    const char* const words = ::strerrordesc_np(code);
    return words ? words : "error " + std::to_string(code);
}

}  // namespace tidewatch::platform
