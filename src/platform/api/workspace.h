#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/named_string.h"
#include "base/result.h"

namespace tidewatch::platform {

/// What the desktop registers of an application.
struct ApplicationInfo {
    std::string name;                     ///< as shown to the user, in Spanish where there is a choice
    std::string icon;                     ///< name in the icon theme or absolute path; empty if there is none
    std::vector<std::string> categories;  ///< of the desktop menu standard, in the order registered
};

/// Applications and files as the desktop knows them. Main thread only.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// The application whose window has the focus; nothing if there is none or it cannot be named.
    /// This program's own windows give its own identifier.
    [[nodiscard]] virtual std::optional<AppId> frontmostApplication() const = 0;

    /// What is registered under this identifier; nothing for an application that the desktop does not know.
    /// Reads a file each time: whoever asks often keeps the answer.
    [[nodiscard]] virtual std::optional<ApplicationInfo> applicationInfo(const AppId& app) const = 0;

    /// Grows whenever applications may have come, gone or changed. While it stands still, what was unknown
    /// still is. May be asked at any rate.
    [[nodiscard]] virtual std::uint64_t registryRevision() const = 0;

    /// Where the desktop keeps the user's documents, absolute; the home directory if it has no such folder.
    [[nodiscard]] virtual std::string documentsDirectory() const = 0;

    /// Shows the file at the absolute `path` in the desktop's file manager, and in nothing else. Returns at
    /// once; `done` is told later what came of it.
    virtual void reveal(const std::string& path, std::function<void(const Outcome&)> done) = 0;
};

}  // namespace tidewatch::platform
