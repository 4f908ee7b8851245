#include "ui/backgrounds/scanlines.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace tidewatch {
namespace {

/// The minimum line distance in screen pixels that leaves room for a line and a gap.
constexpr double closestStep = 1.5;

}  // namespace

void paintScanlines(QPainter& painter, const QRectF& area, const Scanlines& lines) {
    const double screenPixels = std::abs(painter.deviceTransform().m22());
    const double screenStep = lines.step * lines.unit * screenPixels;
    if (screenStep < closestStep) {
        QColor tint = lines.color;
        tint.setAlphaF(static_cast<float>(static_cast<double>(tint.alphaF()) / lines.step));
        painter.fillRect(area, tint);
        return;
    }
    const double step = std::max(2.0, std::round(screenStep)) / screenPixels;
    const double height = std::max(1.0, std::round(lines.unit * screenPixels)) / screenPixels;
    for (double y = area.top() + step; y < area.bottom(); y += step) {
        painter.fillRect(QRectF(area.left(), y, area.width(), std::min(height, area.bottom() - y)),
                         lines.color);
    }
}

}  // namespace tidewatch
