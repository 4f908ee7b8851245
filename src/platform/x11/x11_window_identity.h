#pragma once

#include <sys/types.h>

#include <optional>
#include <string>

#include "base/tagged_string.h"
#include "platform/freedesktop/desktop_entries.h"
#include "platform/x11/x11_connection.h"

namespace tidewatch::platform {

/// The desktop-file id of the application that `window` belongs to, from what its toolkit, its sandbox or its
/// class says; `owner` is its process. Nullopt if no registered application has such windows; while
/// `entries.isReading()` that may change.
[[nodiscard]] std::optional<AppId> registeredApplication(const X11Connection& connection,
                                                         DesktopEntries& entries, xcb_window_t window,
                                                         std::optional<pid_t> owner);

/// The class of a window, else its instance; empty without either.
[[nodiscard]] std::string windowClass(const X11Connection& connection, xcb_window_t window);

}  // namespace tidewatch::platform
