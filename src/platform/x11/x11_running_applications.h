#pragma once

#include <sys/types.h>

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <vector>

#include "platform/api/applications.h"
#include "platform/api/running_applications.h"
#include "platform/freedesktop/desktop_entries.h"
#include "platform/x11/x11_connection.h"

namespace tidewatch::platform {

/// The applications of the windows that the window manager lists. Connects to the server for each call only:
/// calls are rare. Main thread only.
class X11RunningApplications final : public RunningApplications {
public:
    /// `entries` and `applications` must outlive this object. `own` is this program's process, which `endOwn`
    /// ends regularly.
    X11RunningApplications(DesktopEntries& entries, const Applications& applications, pid_t own,
                           std::function<void()> endOwn);

    /// Without the desktop, its panels, and windows that cannot be asked to close.
    [[nodiscard]] std::vector<RunningApplication> list() override;

    /// Asks all windows that the application had in the last list, dialogs of another window excepted. They
    /// have been asked when this returns.
    void askToClose(const RunningApplication& application) override;

private:
    [[nodiscard]] RunningApplication describe(const X11Connection& connection, xcb_window_t window,
                                              std::optional<pid_t> owner);

    DesktopEntries& entries_;
    const Applications& applications_;
    const pid_t own_;
    const std::function<void()> endOwn_;
    std::map<std::uint64_t, std::vector<xcb_window_t>> windows_;  // of the last list, by handle
};

}  // namespace tidewatch::platform
