#pragma once

#include <string.h>

#include <string>

namespace tidewatch::platform {

/// The system's text for an error number, in English whatever the locale.
[[nodiscard]] inline std::string errnoText(int code) {
    const char* const words = ::strerrordesc_np(code);
    return words ? words : "error " + std::to_string(code);
}

}  // namespace tidewatch::platform
