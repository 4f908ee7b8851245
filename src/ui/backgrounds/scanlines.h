#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace tidewatch {

/// Horizontal lines one unit high at every `step`-th unit below the top edge of `area`, the first at one
/// step, while they stay above its bottom.
struct Scanlines {
    QColor color;
    double step = 0;  ///< in units
    double unit = 1;  ///< in the painter's pixels
};

/// Lines that would lie closer together than the screen can show become one even tint of the same
/// brightness; all others start and end on whole pixels of the screen.
void paintScanlines(QPainter& painter, const QRectF& area, const Scanlines& lines);

}  // namespace tidewatch
