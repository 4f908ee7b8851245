#pragma once

#include <optional>
#include <string>
#include <unordered_map>

#include "base/tagged_string.h"
#include "platform/api/applications.h"

namespace tidewatch {

/// The icon of an application.
struct AppIcon {
    enum class Source {
        desktop,  ///< the desktop's icon theme, or a file if the name is an absolute path
        symbol,   ///< the program's own symbol table
    };
    Source source = Source::desktop;
    std::string name;
    std::string description;  ///< accessible text; may be empty
    bool operator==(const AppIcon&) const = default;
};

/// How an application is displayed.
struct AppInfo {
    std::string name;
    std::optional<AppIcon> icon;
    bool operator==(const AppInfo&) const = default;
};

/// Maps identifiers to display names and icons. Each application is looked up once and cached, so one
/// installed later keeps its bare identifier as its name. Main thread only.
class AppInfoResolver final {
public:
    /// `applications` must outlive it.
    explicit AppInfoResolver(const platform::Applications& applications) : applications_(applications) {}

    /// An unknown application gets its identifier as its name and no icon. Valid for the resolver's lifetime.
    [[nodiscard]] const AppInfo& info(const AppId& app) const;

private:
    [[nodiscard]] AppInfo lookUp(const AppId& app) const;

    const platform::Applications& applications_;
    mutable std::unordered_map<AppId, AppInfo> known_;
};

}  // namespace tidewatch
