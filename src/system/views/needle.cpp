#include "system/views/needle.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

namespace tidewatch {

Needle::Needle(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

void Needle::setAngle(double angle) {
    if (angle == angle_) return;
    angle_ = angle;
    update();
    Q_EMIT angleChanged();
}

void Needle::setColor(const QColor& color) {
    if (color == color_) return;
    color_ = color;
    update();
    Q_EMIT colorChanged();
}

void Needle::paint(QPainter* painter) {
    const double length = std::min(width(), height()) / 2;
    const double hub = length * 0.09;
    QPainterPath shape;
    shape.moveTo(-hub * 0.6, 0);
    shape.lineTo(0, -length);
    shape.lineTo(hub * 0.6, 0);
    shape.closeSubpath();
    QPainterPath disc;
    disc.addEllipse(QPointF(0, 0), hub, hub);
    painter->translate(width() / 2, height() / 2);
    painter->rotate(angle_);
    painter->fillPath(shape.united(disc), color_);
}

}  // namespace tidewatch
