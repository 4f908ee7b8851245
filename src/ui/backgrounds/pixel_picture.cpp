#include "ui/backgrounds/pixel_picture.h"

#include <QQuickWindow>
#include <cmath>

namespace tidewatch {

void setPictureSize(QQuickPaintedItem& item, const QSizeF& size) {
    const auto covered = size.expandedTo(item.size());
    const QSize whole(static_cast<int>(std::ceil(covered.width())),
                      static_cast<int>(std::ceil(covered.height())));
    const double ratio = item.window() != nullptr ? item.window()->effectiveDevicePixelRatio() : 1;
    item.setContentsSize(whole);
    // Otherwise a texture with an explicit size is painted in points and scaled up.
    item.setTextureSize((QSizeF(whole) * ratio).toSize());
    item.update();
}

}  // namespace tidewatch
