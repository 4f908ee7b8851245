#pragma once

#include <functional>
#include <string>

#include "base/result.h"

namespace tidewatch::platform {

/// What this desktop calls its own things, in Spanish.
struct DesktopWords {
    std::string revealInFileManager{};  ///< the label of a button that calls Desktop::reveal()
    std::string unnamedVolume{};        ///< the built-in volume, if it has no name
    /// Whether the desktop asks the user before a program may read his folders.
    bool asksBeforeReadingFolders = false;
};

/// Desktop operations on the user's files. Main thread only.
class Desktop {
public:
    virtual ~Desktop() = default;

    /// The user's documents directory, absolute; the home directory if there is none.
    [[nodiscard]] virtual std::string documentsDirectory() const = 0;

    /// Shows the file at the absolute `path` in the desktop's file manager, and in nothing else.
    /// Asynchronous; calls `done` with the result later.
    virtual void reveal(const std::string& path, std::function<void(const Status&)> done) = 0;

    /// May read files; call it when a view appears, not for each of its rows.
    [[nodiscard]] virtual DesktopWords words() const = 0;
};

}  // namespace tidewatch::platform
