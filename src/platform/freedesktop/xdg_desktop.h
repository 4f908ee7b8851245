#pragma once

#include <QObject>
#include <QProcessEnvironment>

#include "platform/api/applications.h"
#include "platform/api/desktop.h"
#include "platform/freedesktop/session_bus.h"

namespace tidewatch::platform {

/// The acts of a freedesktop.org desktop.
class XdgDesktop final : public Desktop {
public:
    /// `bus` and `applications` must outlive this object; `inherited` are the variables for programs that it
    /// starts.
    XdgDesktop(SessionBus& bus, const Applications& applications, QProcessEnvironment inherited);

    [[nodiscard]] std::string documentsDirectory() const override;

    /// Through the file manager that answers on the session bus; else the folder is opened, if it is a file
    /// manager that is registered for folders.
    void reveal(const std::string& path, std::function<void(const Status&)> done) override;

private:
    [[nodiscard]] Status openFolderOf(const QString& file) const;
    [[nodiscard]] bool foldersOpenInFileManager() const;

    SessionBus& bus_;
    const Applications& applications_;
    const QProcessEnvironment inherited_;
    QObject pendingCalls_;  // owns what waits for an answer
};

}  // namespace tidewatch::platform
