#pragma once

#include <QQuickPaintedItem>
#include <QSizeF>

namespace tidewatch {

/// Sets the texture size of `item` to whole screen pixels covering it and at least `size`, so that it is
/// copied to the screen unscaled. Must be called again when a size or the device pixel ratio changes.
void setPictureSize(QQuickPaintedItem& item, const QSizeF& size = {});

}  // namespace tidewatch
