#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/api/frontmost_application.h"
#include "platform/freedesktop/desktop_entries.h"
#include "platform/x11/x11_connection.h"

class QSocketNotifier;

namespace tidewatch::platform {

/// The application of the focused window, from the window manager's _NET_ACTIVE_WINDOW. The result is cached:
/// the server sends events for changes of the active window and its properties, so a query without such an
/// event needs no round trip. Events are consumed as they arrive, so that they do not accumulate. Where
/// nobody announces the active window, as without a window manager, each query asks for the input focus
/// instead. Main thread only.
class X11ActiveApplication final : public FrontmostApplication {
public:
    /// Requires exclusive use of `connection`. Both references must outlive this object. `own` is the
    /// identifier of this program's windows.
    X11ActiveApplication(const X11Connection& connection, DesktopEntries& entries, AppId own);
    ~X11ActiveApplication() override;

    /// Returns nullopt without an active window, or for a window that cannot be identified. Windows of this
    /// program that take no focus never count: the application before them stays.
    [[nodiscard]] std::optional<AppId> current() override;

private:
    [[nodiscard]] xcb_window_t activeWindow();
    [[nodiscard]] xcb_window_t focusedWindow() const;
    [[nodiscard]] bool isOwnWithoutFocus(xcb_window_t window) const;
    void processEvents();
    [[nodiscard]] bool isRelevant(const xcb_generic_event_t& event) const;
    void invalidate();
    void refresh();
    void setWatched(xcb_window_t window, std::uint32_t events);
    [[nodiscard]] std::optional<AppId> identify(xcb_window_t window);

    const X11Connection& connection_;
    DesktopEntries& entries_;
    AppId own_;
    xcb_atom_t activeWindowAtom_;
    xcb_atom_t applicationIdAtom_;
    xcb_window_t window_ = XCB_WINDOW_NONE;
    xcb_window_t former_ = XCB_WINDOW_NONE;  ///< the last active window that may be focused
    std::optional<AppId> application_;
    bool stale_ = true;
    bool announced_ = true;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace tidewatch::platform
