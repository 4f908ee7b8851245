#include "platform/freedesktop/xdg_desktop.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <algorithm>
#include <utility>

#include "platform/freedesktop/folder_handlers.h"
#include "platform/posix/regular_file.h"

namespace tidewatch::platform {

namespace {

constexpr char fileManager[] = "org.freedesktop.FileManager1";
constexpr char fileManagerPath[] = "/org/freedesktop/FileManager1";
constexpr char fileManagerCategory[] = "FileManager";
constexpr int fileManagerTimeout = 10'000;          // milliseconds: it may have to be started first
constexpr std::size_t maxListLength = 1024 * 1024;  // bytes

}  // namespace

XdgDesktop::XdgDesktop(SessionBus& bus, const Applications& applications,
                       const QProcessEnvironment& inherited)
    : bus_(bus), applications_(applications), inherited_(inherited) {}

std::string XdgDesktop::documentsDirectory() const {
    // The toolkit would block on a named pipe in place of the user-dirs file.
    const QFileInfo folders(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                            "/user-dirs.dirs");
    if (folders.exists() && !folders.isFile()) return QDir::homePath().toStdString();
    const auto documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const bool exists = !documents.isEmpty() && QFileInfo(documents).isDir();
    return (exists ? documents : QDir::homePath()).toStdString();
}

void XdgDesktop::reveal(const std::string& path, std::function<void(const Status&)> done) {
    const auto file = QString::fromStdString(path);
    auto message = QDBusMessage::createMethodCall(fileManager, fileManagerPath, fileManager, "ShowItems");
    message << QStringList{QUrl::fromLocalFile(file).toString()} << QString();
    const auto bus = bus_.connection();
    const auto call =
        bus.isConnected()
            ? bus.asyncCall(message, fileManagerTimeout)
            : QDBusPendingCall::fromError(QDBusError(QDBusError::Disconnected, "no session bus"));
    auto* watcher = new QDBusPendingCallWatcher(call, &pendingCalls_);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
                     [this, watcher, file, done = std::move(done)] {
                         watcher->deleteLater();
                         done(watcher->isError() ? openFolderOf(file) : success());
                     });
}

Status XdgDesktop::openFolderOf(const QString& file) const {
    if (!foldersOpenInFileManager()) return Error{"no file manager is registered for folders"};
    QProcess opener;
    opener.setProgram("xdg-open");
    opener.setArguments({QUrl::fromLocalFile(QFileInfo(file).absolutePath()).toString()});
    opener.setProcessEnvironment(inherited_);
    opener.setStandardOutputFile(QProcess::nullDevice());
    opener.setStandardErrorFile(QProcess::nullDevice());
    return opener.startDetached() ? success() : Error{"xdg-open could not be started"};
}

/// Without a file manager, desktops open folders in any application for files, often a web browser.
bool XdgDesktop::foldersOpenInFileManager() const {
    for (const auto& list : standardRegistrationLists()) {
        const auto text = readRegularFile(list, maxListLength);
        if (!text) continue;
        for (const auto& id : folderHandlers(text.value())) {
            if (const auto handler = applications_.info(AppId(id))) {
                return std::ranges::find(handler->categories, fileManagerCategory) !=
                       handler->categories.end();
            }
        }
    }
    return false;
}

}  // namespace tidewatch::platform
