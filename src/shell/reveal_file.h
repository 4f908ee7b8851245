#pragma once

#include <string>

#include "platform/api/desktop.h"
#include "shell/surfaces.h"

namespace tidewatch {

/// Shows the file at the absolute `path` in the file manager. If there is none, a dialog with `title` shows
/// the path. Both must outlive the main loop.
inline void revealFile(platform::Desktop& desktop, Dialogs& dialogs, const std::string& path,
                       const std::string& title) {
    desktop.reveal(path, [&dialogs, path, title](const Status& shown) {
        if (!shown)
            dialogs.warn(title, "No respondió ningún gestor de archivos. El archivo está aquí:\n" + path);
    });
}

}  // namespace tidewatch
