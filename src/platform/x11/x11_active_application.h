#pragma once

#include <sys/types.h>

#include <memory>
#include <optional>
#include <string>

#include "platform/api/frontmost_application.h"
#include "platform/freedesktop/desktop_entries.h"
#include "platform/x11/x11_connection.h"

class QSocketNotifier;

namespace tidewatch::platform {

/// The application of the window that has the focus, as the window manager announces it. What does not
/// change is not asked again: the server reports changes of the active window and of its properties, so a
/// question that finds no such report costs no round trip. Reports are taken as they come, also while nobody
/// asks: what is not taken, the server keeps. Main thread only.
class X11ActiveApplication final : public FrontmostApplication {
public:
    /// Uses `connection` for itself alone, and `entries`; both must outlive this object. `own` is the
    /// identifier of this program's windows.
    X11ActiveApplication(const X11Connection& connection, DesktopEntries& entries, AppId own);
    ~X11ActiveApplication() override;

    /// Nothing without a window manager that announces the active window, without an active window, or for
    /// a window that does not say what it is.
    [[nodiscard]] std::optional<AppId> current() override;

private:
    void processEvents();
    [[nodiscard]] bool isRelevant(const xcb_generic_event_t& event) const;
    void invalidate();
    void refresh();
    void setWatched(xcb_window_t window, std::uint32_t events);
    [[nodiscard]] std::optional<AppId> identify(xcb_window_t window);
    [[nodiscard]] std::optional<pid_t> process(xcb_window_t window) const;

    const X11Connection& connection_;
    DesktopEntries& entries_;
    AppId own_;
    xcb_atom_t activeWindowAtom_;
    xcb_atom_t applicationIdAtom_;
    bool canAskForProcess_;
    xcb_window_t window_ = XCB_WINDOW_NONE;
    std::optional<AppId> application_;
    bool stale_ = true;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace tidewatch::platform
