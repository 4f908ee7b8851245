#pragma once

#include <functional>
#include <string>

#include "base/result.h"

namespace tidewatch::platform {

/// What the desktop does with the user's files on request. Main thread only.
class Desktop {
public:
    virtual ~Desktop() = default;

    /// Where the desktop keeps the user's documents, absolute; the home directory if it has no such folder.
    [[nodiscard]] virtual std::string documentsDirectory() const = 0;

    /// Shows the file at the absolute `path` in the desktop's file manager, and in nothing else. Returns at
    /// once; `done` is told later what came of it.
    virtual void reveal(const std::string& path, std::function<void(const Status&)> done) = 0;
};

}  // namespace tidewatch::platform
