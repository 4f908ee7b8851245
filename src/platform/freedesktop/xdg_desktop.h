#pragma once

#include <QObject>
#include <QProcessEnvironment>
#include <optional>

#include "platform/api/applications.h"
#include "platform/api/desktop.h"
#include "platform/freedesktop/message_bus.h"

namespace tidewatch::platform {

/// Operations of a freedesktop.org desktop.
class XdgDesktop final : public Desktop {
public:
    /// `bus` and `applications` must outlive this object; `inherited` is the environment for programs that it
    /// starts.
    XdgDesktop(MessageBus& bus, const Applications& applications, const QProcessEnvironment& inherited);

    [[nodiscard]] std::string documentsDirectory() const override;

    /// Uses the file manager on the session bus; otherwise opens the folder, provided that a file manager is
    /// registered for folders.
    void reveal(const std::string& path, std::function<void(const Status&)> done) override;

    [[nodiscard]] DesktopWords words() const override;

private:
    [[nodiscard]] Status openFolderOf(const std::string& path) const;
    [[nodiscard]] std::optional<ApplicationInfo> fileManager() const;

    MessageBus& bus_;
    const Applications& applications_;
    const QProcessEnvironment inherited_;
    QObject pendingCalls_;  // owns the watchers of pending calls
};

}  // namespace tidewatch::platform
