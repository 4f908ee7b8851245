#include "platform/x11/x11_window_identity.h"

#include <utility>

#include "platform/linux/process_identity.h"

namespace tidewatch::platform {

namespace {

struct ClassHint {
    std::string instance;
    std::string windowClass;
};

ClassHint classHint(const X11Connection& connection, xcb_window_t window) {
    const auto names = connection.texts(window, XCB_ATOM_WM_CLASS);
    return {.instance = names.empty() ? "" : names[0], .windowClass = names.size() < 2 ? "" : names[1]};
}

}  // namespace

std::optional<AppId> registeredApplication(const X11Connection& connection, DesktopEntries& entries,
                                           xcb_window_t window, std::optional<pid_t> owner) {
    if (const auto ids = connection.texts(window, connection.atom("_GTK_APPLICATION_ID"));
        !ids.empty() && !ids.front().empty()) {
        return AppId(ids.front());
    }
    if (owner) {
        if (auto id = sandboxedApplication(*owner)) return AppId(std::move(*id));
    }
    const auto hint = classHint(connection, window);
    if (auto id = entries.idForWindow(hint.instance, hint.windowClass)) return AppId(std::move(*id));
    return std::nullopt;
}

std::string windowClass(const X11Connection& connection, xcb_window_t window) {
    const auto hint = classHint(connection, window);
    return hint.windowClass.empty() ? hint.instance : hint.windowClass;
}

}  // namespace tidewatch::platform
