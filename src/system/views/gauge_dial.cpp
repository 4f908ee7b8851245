#include "system/views/gauge_dial.h"

#include <QPainter>
#include <QPen>
#include <algorithm>
#include <cmath>

namespace tidewatch {
namespace {

constexpr int tickCount = 11;
constexpr double tickGap = 5;
constexpr double tickLength = 6;
constexpr double tickWidth = 1.5;

// The painter counts angles in sixteenths of a degree, anticlockwise from 3 o'clock.
int painterAngle(double degreesFromTop) {
    return static_cast<int>(std::lround((90 - degreesFromTop) * 16));
}

}  // namespace

GaugeDial::GaugeDial(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

template <class Value>
void GaugeDial::change(Value& value, const Value& to, void (GaugeDial::*changed)()) {
    if (value == to) return;
    value = to;
    update();
    Q_EMIT(this->*changed)();
}

void GaugeDial::setValue(double value) {
    change(value_, value, &GaugeDial::scaleChanged);
}

void GaugeDial::setScaleMax(double max) {
    change(scaleMax_, max, &GaugeDial::scaleChanged);
}

void GaugeDial::setSweep(double sweep) {
    change(sweep_, sweep, &GaugeDial::scaleChanged);
}

double GaugeDial::angle() const {
    const double fraction = scaleMax_ > 0 ? std::clamp(value_ / scaleMax_, 0.0, 1.0) : 0.0;
    return sweep_ * fraction - sweep_ / 2;
}

void GaugeDial::setShownAngle(double angle) {
    change(shownAngle_, angle, &GaugeDial::shownAngleChanged);
}

void GaugeDial::setColor(const QColor& color) {
    change(color_, color, &GaugeDial::colorsChanged);
}

void GaugeDial::setTrack(const QColor& track) {
    change(track_, track, &GaugeDial::colorsChanged);
}

void GaugeDial::setTickColor(const QColor& color) {
    change(tickColor_, color, &GaugeDial::colorsChanged);
}

void GaugeDial::setThickness(double thickness) {
    change(thickness_, thickness, &GaugeDial::colorsChanged);
}

void GaugeDial::setUnit(double unit) {
    change(unit_, unit, &GaugeDial::colorsChanged);
}

void GaugeDial::paint(QPainter* painter) {
    const double diameter = std::min(width(), height()) - thickness_;
    if (diameter <= 0) return;
    const QRectF circle((width() - diameter) / 2, (height() - diameter) / 2, diameter, diameter);
    const double start = -sweep_ / 2;
    painter->setPen(QPen(track_, thickness_, Qt::SolidLine, Qt::RoundCap));
    painter->drawArc(circle, painterAngle(start), painterAngle(-start) - painterAngle(start));
    paintTicks(*painter, diameter / 2 - thickness_ / 2 - tickGap * unit_);
    if (shownAngle_ <= start) return;
    painter->setPen(QPen(color_, thickness_, Qt::SolidLine, Qt::RoundCap));
    painter->drawArc(circle, painterAngle(start),
                     std::min(-1, painterAngle(shownAngle_) - painterAngle(start)));
}

void GaugeDial::paintTicks(QPainter& painter, double radius) const {
    painter.setPen(QPen(tickColor_, tickWidth * unit_, Qt::SolidLine, Qt::RoundCap));
    for (int tick = 0; tick < tickCount; ++tick) {
        painter.save();
        painter.translate(width() / 2, height() / 2);
        painter.rotate(sweep_ * tick / (tickCount - 1) - sweep_ / 2);
        painter.drawLine(QPointF(0, -radius), QPointF(0, tickLength * unit_ - radius));
        painter.restore();
    }
}

}  // namespace tidewatch
