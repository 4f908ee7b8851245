#include "ui/backgrounds/pixel_picture.h"

#include <cmath>

namespace tidewatch {

void setPictureSize(QQuickPaintedItem& item, const QSizeF& size) {
    const auto covered = size.expandedTo(item.size());
    const QSize whole(static_cast<int>(std::ceil(covered.width())),
                      static_cast<int>(std::ceil(covered.height())));
    item.setContentsSize(whole);
    // In points, too. Without it the picture would have one pixel for each point of the contents.
    item.setTextureSize(whole);
    item.update();
}

}  // namespace tidewatch
