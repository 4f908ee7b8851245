#include "ui/controls/donut_ring.h"

#include <QPainter>
#include <QPen>
#include <algorithm>

namespace tidewatch {
namespace {

// The painter counts angles in sixteenths of a degree, anticlockwise from 3 o'clock.
constexpr int sixteenths = 16;
constexpr int twelveOClock = 90 * sixteenths;
constexpr int fullCircle = 360 * sixteenths;

}  // namespace

DonutRing::DonutRing(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

template <class Value>
void DonutRing::change(Value& value, const Value& to, void (DonutRing::*changed)()) {
    if (value == to) return;
    value = to;
    update();
    Q_EMIT(this->*changed)();
}

void DonutRing::setFraction(double fraction) {
    change(fraction_, fraction, &DonutRing::fractionChanged);
}

void DonutRing::setColor(const QColor& color) {
    change(color_, color, &DonutRing::colorChanged);
}

void DonutRing::setTrack(const QColor& track) {
    change(track_, track, &DonutRing::trackChanged);
}

void DonutRing::setThickness(double thickness) {
    change(thickness_, thickness, &DonutRing::thicknessChanged);
}

void DonutRing::paint(QPainter* painter) {
    const double diameter = std::min(width(), height()) - thickness_;
    if (diameter <= 0) return;
    const QRectF circle((width() - diameter) / 2, (height() - diameter) / 2, diameter, diameter);
    painter->setPen(QPen(track_, thickness_));
    painter->drawEllipse(circle);
    if (fraction_ <= 0) return;
    painter->setPen(QPen(color_, thickness_, Qt::SolidLine, Qt::RoundCap));
    const int filled = std::max(1, qRound(std::min(fraction_, 1.0) * fullCircle));
    painter->drawArc(circle, twelveOClock, -filled);
}

}  // namespace tidewatch
