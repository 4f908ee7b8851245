#pragma once

#include <QImage>
#include <QPainter>
#include <QSize>

namespace tidewatch {

/// What `paint(QPainter&)` draws on a transparent ground, with antialiasing.
///
/// An image that was painted on holds the painter's buffers, up to a megabyte, for as long as it lives; this
/// one has none.
template <class Paint>
[[nodiscard]] QImage paintedImage(const QSize& pixels, Paint&& paint) {
    QImage canvas(pixels, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    {
        QPainter painter(&canvas);
        painter.setRenderHint(QPainter::Antialiasing);
        paint(painter);
    }
    return canvas.copy();
}

}  // namespace tidewatch
