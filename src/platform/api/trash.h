#pragma once

#include <string>

#include "base/result.h"

namespace tidewatch::platform {

/// The desktop's trash. Main thread only.
class Trash {
public:
    virtual ~Trash() = default;

    /// Moves the file at the absolute `path` to the trash of its volume, from where the desktop can restore
    /// it. On failure it stays where it is.
    virtual Status moveToTrash(const std::string& path) = 0;
};

}  // namespace tidewatch::platform
