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
    // Without this, a picture with a size of its own is painted in points and enlarged.
    item.setTextureSize((QSizeF(whole) * ratio).toSize());
    item.update();
}

}  // namespace tidewatch
