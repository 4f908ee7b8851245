#pragma once

#include <QQuickPaintedItem>
#include <QSizeF>

namespace tidewatch {

/// Sets the picture of `item` to whole points covering it and at least `size`, painted in the pixels of the
/// screen. Must be called again when a size changes.
void setPictureSize(QQuickPaintedItem& item, const QSizeF& size = {});

}  // namespace tidewatch
