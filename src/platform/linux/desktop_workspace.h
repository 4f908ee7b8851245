#pragma once

#include "platform/api/workspace.h"
#include "platform/linux/desktop_entries.h"
#include "platform/linux/x11_active_application.h"
#include "platform/linux/x11_connection.h"

namespace tidewatch::platform {

/// Applications and files of a freedesktop.org desktop on an X server.
class DesktopWorkspace final : public Workspace {
public:
    /// `own` is the identifier of this program's own windows.
    explicit DesktopWorkspace(AppId own);

    [[nodiscard]] std::optional<AppId> frontmostApplication() const override;

    [[nodiscard]] std::optional<ApplicationInfo> applicationInfo(const AppId& app) const override;

    [[nodiscard]] std::uint64_t registryRevision() const override { return entries_.revision(); }

    [[nodiscard]] std::string documentsDirectory() const override;

    /// Through the file manager that answers on the session bus; else the folder is opened. Asks without
    /// waiting: only what fails at once is told.
    Outcome reveal(const std::string& path) override;

private:
    X11Connection connection_;
    mutable DesktopEntries entries_;
    mutable X11ActiveApplication active_;
};

}  // namespace tidewatch::platform
