#pragma once

#include <functional>
#include <string>

#include "base/result.h"

namespace tidewatch::platform {

/// Desktop operations on the user's files. Main thread only.
class Desktop {
public:
    virtual ~Desktop() = default;

    /// The user's documents directory, absolute; the home directory if there is none.
    [[nodiscard]] virtual std::string documentsDirectory() const = 0;

    /// Shows the file at the absolute `path` in the desktop's file manager, and in nothing else.
    /// Asynchronous; calls `done` with the result later.
    virtual void reveal(const std::string& path, std::function<void(const Status&)> done) = 0;
};

}  // namespace tidewatch::platform
