#include "platform/linux/desktop_workspace.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QUrl>

namespace tidewatch::platform {

namespace {

bool openFolderOf(const QString& path) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).absolutePath()));
}

}  // namespace

DesktopWorkspace::DesktopWorkspace(AppId own)
    : entries_(DesktopEntries::standardFolders()), active_(connection_, entries_, std::move(own)) {}

std::optional<AppId> DesktopWorkspace::frontmostApplication() const {
    return active_.current();
}

std::optional<ApplicationInfo> DesktopWorkspace::applicationInfo(const AppId& app) const {
    return entries_.info(app.text(), QLocale::system().name().toStdString());
}

std::string DesktopWorkspace::documentsDirectory() const {
    const auto documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const bool exists = !documents.isEmpty() && QFileInfo(documents).isDir();
    return (exists ? documents : QDir::homePath()).toStdString();
}

Outcome DesktopWorkspace::reveal(const std::string& path) {
    const auto file = QString::fromStdString(path);
    const auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        if (openFolderOf(file)) return success();
        return Error{"no file manager could be started"};
    }
    auto message =
        QDBusMessage::createMethodCall("org.freedesktop.FileManager1", "/org/freedesktop/FileManager1",
                                       "org.freedesktop.FileManager1", "ShowItems");
    message << QStringList{QUrl::fromLocalFile(file).toString()} << QString();
    auto* call = new QDBusPendingCallWatcher(bus.asyncCall(message));
    QObject::connect(call, &QDBusPendingCallWatcher::finished, call, [call, file] {
        if (QDBusPendingReply<>(*call).isError()) openFolderOf(file);
        call->deleteLater();
    });
    return success();
}

}  // namespace tidewatch::platform
