#include "ui/backgrounds/panel_shape.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace tidewatch {

QPainterPath PanelShape::outline() const {
    QPainterPath path;
    path.addRoundedRect(bounds(), cornerRadius, cornerRadius);
    return path;
}

QPainterPath PanelShape::area() const {
    if (ground == Ground::translucent) return outline();
    QPainterPath path;
    path.addRect(bounds());
    return path;
}

void drawBorder(QPainter& painter, const PanelShape& shape, const QColor& color, double width) {
    const double screenPixel = 1 / std::abs(painter.deviceTransform().m11());
    const double line = std::max(width * shape.unit, screenPixel);
    const double inset = line / 2;
    const double radius = std::max(0.0, shape.cornerRadius - inset);
    painter.setPen(QPen(color, line));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(shape.bounds().adjusted(inset, inset, -inset, -inset), radius, radius);
}

}  // namespace tidewatch
