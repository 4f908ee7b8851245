#pragma once

#include <optional>

#include "base/tagged_string.h"

namespace tidewatch::platform {

/// The application that the user is working in. Main thread only.
class FrontmostApplication {
public:
    virtual ~FrontmostApplication() = default;

    /// The application whose window has the focus. Returns nullopt if there is none, if it cannot be
    /// identified, or if the desktop does not provide it. This program's own windows yield its own
    /// identifier.
    [[nodiscard]] virtual std::optional<AppId> current() = 0;
};

}  // namespace tidewatch::platform
