#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace tidewatch {

/// Horizontal lines one unit high every `step` units below the top edge of `area`, starting at one step, down
/// to its bottom.
struct Scanlines {
    QColor color;
    double step = 0;  ///< in units
    double unit = 1;  ///< in the painter's pixels
};

/// Lines too close for the screen's resolution become an even tint of the same brightness; others are aligned
/// to screen pixels.
void paintScanlines(QPainter& painter, const QRectF& area, const Scanlines& lines);

}  // namespace tidewatch
