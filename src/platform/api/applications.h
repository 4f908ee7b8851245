#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/tagged_string.h"

namespace tidewatch::platform {

/// An application's registration with the desktop.
struct ApplicationInfo {
    std::string name;                     ///< as shown to the user, in Spanish where there is a choice
    std::string icon;                     ///< name in the icon theme or absolute path; empty if there is none
    std::vector<std::string> categories;  ///< of the desktop menu standard, in the order registered
};

/// Application metadata, whether or not they are running. Main thread only.
class Applications {
public:
    virtual ~Applications() = default;

    /// Returns nullopt for an application that the desktop does not know. Reads a file on each call; cache
    /// the result if needed often.
    [[nodiscard]] virtual std::optional<ApplicationInfo> info(const AppId& app) const = 0;

    /// Increases whenever applications may have been added, removed or changed. While it is unchanged,
    /// unknown applications are still unknown. Cheap; may be called at any rate.
    [[nodiscard]] virtual std::uint64_t revision() = 0;
};

}  // namespace tidewatch::platform
