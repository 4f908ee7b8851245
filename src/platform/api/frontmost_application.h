#pragma once

#include <optional>

#include "base/tagged_string.h"

namespace tidewatch::platform {

/// Which application the user is working in. Main thread only.
class FrontmostApplication {
public:
    virtual ~FrontmostApplication() = default;

    /// The application whose window has the focus; nothing if there is none, if it cannot be named, or if
    /// this desktop does not tell. This program's own windows give its own identifier.
    [[nodiscard]] virtual std::optional<AppId> current() = 0;
};

}  // namespace tidewatch::platform
