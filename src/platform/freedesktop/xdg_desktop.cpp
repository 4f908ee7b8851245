#include "platform/freedesktop/xdg_desktop.h"

#include <QByteArray>
#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <algorithm>
#include <utility>

#include "platform/freedesktop/folder_handlers.h"
#include "platform/posix/regular_file.h"

namespace tidewatch::platform {

namespace {

constexpr char fileManagerService[] = "org.freedesktop.FileManager1";
constexpr char fileManagerPath[] = "/org/freedesktop/FileManager1";
constexpr char fileManagerCategory[] = "FileManager";
constexpr int fileManagerTimeout = 10'000;          // milliseconds: it may have to be started first
constexpr std::size_t maxListLength = 1024 * 1024;  // bytes

// A path need not be valid text, which the toolkit's own addresses are.
QString fileUri(const std::string& path) {
    return "file://" + QByteArray::fromStdString(path).toPercentEncoding("/");
}

}  // namespace

XdgDesktop::XdgDesktop(MessageBus& bus, const Applications& applications,
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
    auto message =
        QDBusMessage::createMethodCall(fileManagerService, fileManagerPath, fileManagerService, "ShowItems");
    message << QStringList{fileUri(path)} << QString();
    const auto bus = bus_.connection();
    const auto call =
        bus.isConnected()
            ? bus.asyncCall(message, fileManagerTimeout)
            : QDBusPendingCall::fromError(QDBusError(QDBusError::Disconnected, "no session bus"));
    auto* watcher = new QDBusPendingCallWatcher(call, &pendingCalls_);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
                     [this, watcher, path, done = std::move(done)] {
                         watcher->deleteLater();
                         done(watcher->isError() ? openFolderOf(path) : success());
                     });
}

DesktopWords XdgDesktop::words() const {
    const auto manager = fileManager();
    return {.revealInFileManager = manager ? "Revelar en " + manager->name : "Mostrar en la carpeta",
            .unnamedVolume = "Sistema"};
}

Status XdgDesktop::openFolderOf(const std::string& path) const {
    if (!fileManager()) return Error{"no file manager is registered for folders"};
    QProcess opener;
    opener.setProgram("xdg-open");
    opener.setArguments({fileUri(path.substr(0, std::max<std::size_t>(path.rfind('/'), 1)))});
    opener.setProcessEnvironment(inherited_);
    opener.setStandardOutputFile(QProcess::nullDevice());
    opener.setStandardErrorFile(QProcess::nullDevice());
    return opener.startDetached() ? success() : Error{"xdg-open could not be started"};
}

/// The application registered for folders. Without a file manager, that may be any application for files,
/// often a web browser.
std::optional<ApplicationInfo> XdgDesktop::fileManager() const {
    for (const auto& list : standardRegistrationLists()) {
        const auto text = readRegularFile(list, maxListLength);
        if (!text) continue;
        for (const auto& id : folderHandlers(text.value())) {
            auto handler = applications_.info(AppId(id));
            if (!handler) continue;
            const bool isFileManager =
                std::ranges::find(handler->categories, fileManagerCategory) != handler->categories.end();
            return isFileManager ? std::move(handler) : std::nullopt;
        }
    }
    return std::nullopt;
}

}  // namespace tidewatch::platform
