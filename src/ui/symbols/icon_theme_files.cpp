#include "ui/symbols/icon_theme_files.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <algorithm>
#include <array>

namespace tidewatch {
namespace {

constexpr qint64 maxPictureSize = 4 * 1024 * 1024;  // bytes
constexpr qint64 maxIndexSize = 1024 * 1024;        // bytes
constexpr int maxThemes = 64;

constexpr std::array endings{".png", ".svg", ".xpm"};
/// The suffixes of images for screens with that many pixels per point.
constexpr std::array densities{"@2x", "@3x", "@4x", "@5x", "@6x", "@7x", "@8x", "@9x"};

// Whether a drawing refers to an external image, which the toolkit would open.
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

bool isOnePicture(const QFileInfo& info) {
    if (!info.isFile() || info.size() > maxPictureSize) return false;
    QFile file(info.filePath());
    if (!file.open(QIODevice::ReadOnly)) return false;
    const auto content = file.read(maxPictureSize);
    const bool isPacked = content.startsWith("\x1f\x8b");  // its content is unknown
    return !isPacked && !refersToAnotherFile(content);
}

QString ofDensity(const QFileInfo& picture, const char* density) {
    auto path = picture.filePath();
    const auto dot = path.lastIndexOf('.');
    return path.insert(dot < 0 ? path.size() : dot, density);
}

// The name itself, and its prefixes up to each dash, longest first.
QStringList namesFor(QString name) {
    QStringList names;
    while (true) {
        names += name;
        const auto dash = name.lastIndexOf('-');
        if (dash < 0) return names;
        name.truncate(dash);
    }
}

}  // namespace

bool pictureCanBeOpened(const QFileInfo& picture) {
    return isOnePicture(picture) && std::ranges::all_of(densities, [&](const char* density) {
               const QFileInfo denser(ofDensity(picture, density));
               return !denser.exists() || isOnePicture(denser);
           });
}

IconThemeFiles::IconThemeFiles() {
    for (const auto& name : {QIcon::themeName(), QIcon::fallbackThemeName(), QString("hicolor")}) {
        if (!name.isEmpty() && !themes_.contains(name)) themes_ += name;
    }
    // Parent themes come after the theme itself.
    for (qsizetype i = 0; i < themes_.size() && i < maxThemes; ++i) addTheme(QString(themes_[i]));
    if (themes_.size() > maxThemes) canBeRead_ = false;
    for (const auto& folder : QIcon::themeSearchPaths() + QIcon::fallbackSearchPaths()) addFolder(folder);
    folders_.removeDuplicates();
}

// A theme may be spread over several directories; what any of its indexes lists may be in each of them.
void IconThemeFiles::addTheme(const QString& name) {
    QStringList places;
    for (const auto& base : QIcon::themeSearchPaths()) {
        if (const QString place = base + '/' + name; QFileInfo(place).isDir()) places += place + '/';
    }
    QStringList listed;
    for (const auto& place : std::as_const(places)) listed += readIndex(place);
    listed.removeDuplicates();
    for (const auto& place : std::as_const(places)) {
        for (const auto& folder : std::as_const(listed)) addFolder(place + folder);
    }
}

void IconThemeFiles::addFolder(const QString& path) {
    if (QFileInfo::exists(path)) folders_ += path + '/';
}

QStringList IconThemeFiles::readIndex(const QString& place) {
    const QFileInfo cache(place + "icon-theme.cache");
    if (cache.exists() && !cache.isFile()) canBeRead_ = false;
    const QFileInfo index(place + "index.theme");
    if (!index.exists()) return {};
    QFile file(index.filePath());
    if (!index.isFile() || index.size() > maxIndexSize || !file.open(QIODevice::ReadOnly)) {
        canBeRead_ = false;
        return {};
    }
    QStringList listed;
    for (const auto& each : file.read(maxIndexSize).replace('\r', '\n').split('\n')) {
        const auto line = each.trimmed();
        if (line.startsWith('[')) {
            const auto folder = QString::fromUtf8(line.mid(1, line.indexOf(']') - 1)).trimmed();
            // The toolkit would look up a different name.
            if (folder.contains('%') || folder.contains('\\')) canBeRead_ = false;
            listed += folder;
        } else if (line.startsWith("Inherits") && line.contains('=')) {
            addParents(QString::fromUtf8(line.mid(line.indexOf('=') + 1)));
        }
    }
    return listed;
}

void IconThemeFiles::addParents(QString names) {
    for (const auto& each : names.remove('"').split(',')) {
        const auto name = each.trimmed();
        if (!name.isEmpty() && !themes_.contains(name)) themes_ += name;
    }
}

bool IconThemeFiles::canBeOpened(const QString& name) const {
    if (!canBeRead_) return false;
    for (const auto& each : namesFor(name)) {
        for (const auto& folder : folders_) {
            for (const auto* ending : endings) {
                const QString picture = folder + each + ending;
                if (QFileInfo::exists(picture) && !pictureCanBeOpened(QFileInfo(picture))) return false;
            }
        }
    }
    return true;
}

}  // namespace tidewatch
