#pragma once

#include <optional>
#include <string>
#include <unordered_map>

#include "base/tagged_string.h"
#include "platform/api/applications.h"

namespace tidewatch {

/// Where the picture of an application is to be found.
struct AppIcon {
    enum class Source {
        desktop,  ///< the desktop's icon theme, or a file if the name is an absolute path
        symbol,   ///< this program's own symbols
    };
    Source source = Source::desktop;
    std::string name;
    std::string description;  ///< for those who cannot see it; may be empty
    bool operator==(const AppIcon&) const = default;
};

/// How an application is shown.
struct AppInfo {
    std::string name;
    std::optional<AppIcon> icon;
    bool operator==(const AppInfo&) const = default;
};

/// Turns identifiers into what the user sees. Each application is looked up once in the life of this object,
/// so one that is installed later keeps the bare identifier as its name. Main thread only.
class AppInfoResolver final {
public:
    /// `applications` must outlive it.
    explicit AppInfoResolver(const platform::Applications& applications) : applications_(applications) {}

    /// An application that the desktop does not know goes by its identifier and has no icon. Valid as long
    /// as the resolver.
    [[nodiscard]] const AppInfo& info(const AppId& app) const;

private:
    [[nodiscard]] AppInfo lookUp(const AppId& app) const;

    const platform::Applications& applications_;
    mutable std::unordered_map<AppId, AppInfo> known_;
};

}  // namespace tidewatch
