#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>

#include "base/named_string.h"
#include "platform/api/workspace.h"

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

/// Turns identifiers into what the user sees. An application that was found is not looked up again in the
/// life of this object; one that was not found is, once the desktop may have it. Main thread only.
class AppInfoResolver final {
public:
    /// `workspace` must outlive it.
    explicit AppInfoResolver(const platform::Workspace& workspace) : workspace_(workspace) {}

    /// An application that the desktop does not know goes by its identifier and has no icon. Valid as long as
    /// the resolver; what it says changes when an application that was unknown has been installed.
    [[nodiscard]] const AppInfo& info(const AppId& app) const;

private:
    struct Answer {
        AppInfo info;
        std::optional<std::uint64_t> unknownAt;  ///< revision of the registry that did not have it
    };

    [[nodiscard]] Answer lookUp(const AppId& app) const;

    const platform::Workspace& workspace_;
    mutable std::unordered_map<AppId, Answer> answers_;
};

}  // namespace tidewatch
