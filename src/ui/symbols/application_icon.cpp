#include "ui/symbols/application_icon.h"

#include <QDir>
#include <QFileInfo>

#include "ui/symbols/icon_theme_files.h"

namespace tidewatch {

QIcon applicationIcon(const QString& name) {
    if (name.isEmpty()) return {};
    if (!QDir::isAbsolutePath(name)) {
        return IconThemeFiles().canBeOpened(name) ? QIcon::fromTheme(name) : QIcon();
    }
    if (!pictureCanBeOpened(QFileInfo(name))) return {};
    const QIcon icon(name);
    // An unreadable file yields an icon that is not null but has no image.
    constexpr int anySize = 16;
    return icon.pixmap(anySize, anySize).isNull() ? QIcon() : icon;
}

}  // namespace tidewatch
