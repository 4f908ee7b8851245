#pragma once

#include <QQuickPaintedItem>
#include <QSizeF>

namespace tidewatch {

/// Gives `item` a picture of whole pixels that covers it and at least `size`, from its top left corner on, so
/// that it is copied to the screen as it was painted. To be called again when one of the sizes or the
/// screen's device pixel ratio changes.
void setPictureSize(QQuickPaintedItem& item, const QSizeF& size = {});

}  // namespace tidewatch
