#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/tagged_string.h"

namespace tidewatch::platform {

/// What the desktop registers of an application.
struct ApplicationInfo {
    std::string name;                     ///< as shown to the user, in Spanish where there is a choice
    std::string icon;                     ///< name in the icon theme or absolute path; empty if there is none
    std::vector<std::string> categories;  ///< of the desktop menu standard, in the order registered
};

/// What is known of applications, whether they run or not. Main thread only.
class Applications {
public:
    virtual ~Applications() = default;

    /// What is registered under this identifier; nothing for an application that the desktop does not know.
    /// Reads a file each time: whoever asks often keeps the answer.
    [[nodiscard]] virtual std::optional<ApplicationInfo> info(const AppId& app) const = 0;

    /// Grows whenever applications may have come, gone or changed. While it stands still, what was unknown
    /// still is. May be asked at any rate.
    [[nodiscard]] virtual std::uint64_t revision() = 0;
};

}  // namespace tidewatch::platform
