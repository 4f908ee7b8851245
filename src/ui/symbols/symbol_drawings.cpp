#include "ui/symbols/symbol_drawings.h"

#include <QPainterPathStroker>
#include <QPointF>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace tidewatch {
namespace {

/// A star with `points` points around `centre`, one of them upwards.
QPainterPath star(QPointF centre, int points, double outer, double inner) {
    const int corners = 2 * points;
    QPainterPath path;
    for (int corner = 0; corner < corners; ++corner) {
        const double radius = corner % 2 == 0 ? outer : inner;
        const double angle = std::numbers::pi * (2.0 * corner / corners - 0.5);
        const QPointF point = centre + QPointF(radius * std::cos(angle), radius * std::sin(angle));
        if (corner == 0) {
            path.moveTo(point);
        } else {
            path.lineTo(point);
        }
    }
    path.closeSubpath();
    return path;
}

QPainterPath starBody() {
    return star({0.5, 0.53}, 5, 0.5, 0.225);
}

QPainterPath outline(const QPainterPath& shape, double width) {
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setJoinStyle(Qt::RoundJoin);
    stroker.setCapStyle(Qt::RoundCap);
    return stroker.createStroke(shape);
}

QPainterPath fitted(const QPainterPath& path) {
    const auto bounds = path.boundingRect();
    const double scale = 1 / std::max(bounds.width(), bounds.height());
    QTransform transform;
    transform.translate(0.5, 0.5);
    transform.scale(scale, scale);
    transform.translate(-bounds.center().x(), -bounds.center().y());
    return transform.map(path);
}

QPainterPath circle(QPointF centre, double radius) {
    QPainterPath path;
    path.addEllipse(centre, radius, radius);
    return path;
}

}  // namespace

QPainterPath filledStar() {
    const auto body = starBody();
    return fitted(body.united(outline(body, 0.08)));
}

QPainterPath hollowStar() {
    return fitted(outline(starBody(), 0.1));
}

QPainterPath appWindow() {
    // Odd-even fill: the frame and the bar are filled, the buttons are not.
    QPainterPath window;
    window.addRoundedRect(QRectF(0.05, 0.08, 0.9, 0.84), 0.17, 0.17);
    window.addRoundedRect(QRectF(0.13, 0.36, 0.74, 0.48), 0.09, 0.09);
    constexpr double button = 0.05;
    for (const double x : {0.2, 0.34, 0.48}) window.addEllipse(QPointF(x, 0.22), button, button);
    return window;
}

QPainterPath filledCircle() {
    return circle({0.5, 0.5}, 0.5);
}

QPainterPath fourSquares() {
    constexpr double first = 0.125;
    constexpr double second = 0.54;
    constexpr double side = 0.335;
    QPainterPath path;
    for (const double x : {first, second}) {
        for (const double y : {first, second}) path.addRoundedRect(x, y, side, side, 0.05, 0.05);
    }
    return path;
}

QPainterPath bomb() {
    // In hundredths: set operations flatten curves, and would do so visibly in a unit square.
    const QPointF middle(40, 61);
    QPainterPath light;
    light.moveTo(middle + QPointF(-23, 0));
    light.cubicTo(middle + QPointF(-23, -13), middle + QPointF(-13, -23), middle + QPointF(0, -23));

    QPainterPath neck;
    neck.addRoundedRect(QRectF(-12, -46, 24, 16), 3, 3);
    const auto leaning = QTransform::fromTranslate(middle.x(), middle.y()).rotate(40).map(neck);

    QPainterPath fuse;
    fuse.moveTo(67, 29);
    fuse.cubicTo({72, 17}, {80, 16}, {84, 21});

    const auto body = circle(middle, 37).subtracted(outline(light, 6));
    const auto spark = star({90, 15}, 7, 13, 6);
    return fitted(body.united(leaning).united(outline(fuse, 6)).united(spark));
}

}  // namespace tidewatch
