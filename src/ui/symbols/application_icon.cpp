#include "ui/symbols/application_icon.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <array>

namespace tidewatch {
namespace {

constexpr qint64 maxSize = 4 * 1024 * 1024;  // bytes

constexpr std::array endings{".png", ".svg", ".xpm"};
constexpr std::array folderPatterns{"%1/%2x%2/apps/", "%1/apps/%2/", "%1/scalable/apps/",
                                    "%1/symbolic/apps/"};
constexpr std::array sizes{16, 22, 24, 32, 36, 48, 64, 72, 96, 128, 192, 256, 512};

// Whether a drawing names a picture outside itself, which the toolkit would open.
bool refersToAnotherFile(const QByteArray& content) {
    if (!content.contains("<svg") || !content.contains("image")) return false;
    constexpr QByteArrayView key = "href";
    for (auto at = content.indexOf(key); at >= 0; at = content.indexOf(key, at + 1)) {
        const auto rest = content.mid(at + key.size(), 100).trimmed();
        if (!rest.startsWith('=')) continue;
        const auto value = rest.mid(1).trimmed().mid(1).trimmed();
        if (!value.startsWith("data:") && !value.startsWith('#')) return true;
    }
    return false;
}

bool canBeOpened(const QFileInfo& info) {
    if (!info.isFile() || info.size() > maxSize) return false;
    QFile file(info.filePath());
    if (!file.open(QIODevice::ReadOnly)) return false;
    const auto content = file.read(maxSize);
    const bool isPacked = content.startsWith("\x1f\x8b");  // what is in it cannot be told
    return !isPacked && !refersToAnotherFile(content);
}

QStringList foldersOf(const QString& theme) {
    QStringList folders;
    for (const auto* pattern : folderPatterns) {
        const auto folder = QString(pattern).arg(theme);
        if (!folder.contains("%2")) {
            folders += folder;
            continue;
        }
        for (const int size : sizes) folders += folder.arg(size);
    }
    return folders;
}

// Whether all that the theme may have under this name can be opened.
bool themeIconCanBeOpened(const QString& name) {
    QStringList folders;
    for (const auto& base : QIcon::themeSearchPaths()) {
        if (!QDir(base).exists()) continue;
        QStringList themes{QIcon::themeName(), QIcon::fallbackThemeName(), "hicolor"};
        themes.removeDuplicates();
        for (const auto& theme : themes) {
            const auto path = base + "/" + theme;
            if (!theme.isEmpty() && QDir(path).exists()) folders += foldersOf(path);
        }
        folders += base + "/";
    }
    for (const auto& folder : QIcon::fallbackSearchPaths()) folders += folder + "/";
    for (const auto& folder : std::as_const(folders)) {
        for (const auto* ending : endings) {
            const QFileInfo picture(folder + name + ending);
            if (picture.exists() && !canBeOpened(picture)) return false;
        }
    }
    return true;
}

}  // namespace

QIcon applicationIcon(const QString& name) {
    if (name.isEmpty()) return {};
    if (!QDir::isAbsolutePath(name)) return themeIconCanBeOpened(name) ? QIcon::fromTheme(name) : QIcon();
    if (!canBeOpened(QFileInfo(name))) return {};
    const QIcon icon(name);
    // A file that cannot be read makes an icon that is there and has no picture.
    constexpr int anySize = 16;
    return icon.pixmap(anySize, anySize).isNull() ? QIcon() : icon;
}

}  // namespace tidewatch
