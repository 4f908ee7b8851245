#pragma once

#include <optional>
#include <string>

#include "base/named_string.h"
#include "base/result.h"

namespace tidewatch::platform {

/// Applications and files as the desktop knows them. Main thread only.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// The application whose window has the focus; nothing if there is none or it cannot be named.
    /// This program's own windows give its own identifier.
    [[nodiscard]] virtual std::optional<AppId> frontmostApplication() const = 0;

    /// Shows the file at the absolute `path` in the desktop's file manager.
    virtual Outcome reveal(const std::string& path) = 0;
};

}  // namespace tidewatch::platform
