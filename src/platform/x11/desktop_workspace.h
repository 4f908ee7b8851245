#pragma once

#include <QObject>
#include <QProcessEnvironment>

#include "platform/api/workspace.h"
#include "platform/freedesktop/desktop_entries.h"
#include "platform/freedesktop/session_bus.h"
#include "platform/x11/x11_active_application.h"
#include "platform/x11/x11_connection.h"

namespace tidewatch::platform {

/// Applications and files of a freedesktop.org desktop on an X server.
class DesktopWorkspace final : public Workspace {
public:
    /// `own` is the identifier of this program's own windows.
    /// `bus` must outlive this object; `inherited` are the variables for programs that it starts.
    DesktopWorkspace(AppId own, SessionBus& bus, QProcessEnvironment inherited);

    [[nodiscard]] std::optional<AppId> frontmostApplication() const override;

    [[nodiscard]] std::optional<ApplicationInfo> applicationInfo(const AppId& app) const override;

    [[nodiscard]] std::uint64_t registryRevision() const override { return entries_.revision(); }

    [[nodiscard]] std::string documentsDirectory() const override;

    /// Through the file manager that answers on the session bus; else the folder is opened, if it is a file
    /// manager that is registered for folders.
    void reveal(const std::string& path, std::function<void(const Outcome&)> done) override;

private:
    [[nodiscard]] Outcome openFolderOf(const QString& file) const;
    [[nodiscard]] bool foldersOpenInFileManager() const;

    SessionBus& bus_;
    const QProcessEnvironment inherited_;
    QObject pendingCalls_;  // owns what waits for an answer
    X11Connection connection_;
    mutable DesktopEntries entries_;
    mutable X11ActiveApplication active_;
};

}  // namespace tidewatch::platform
