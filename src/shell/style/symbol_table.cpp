#include "shell/style/symbol_table.h"

#include <QPainterPathStroker>
#include <QPointF>
#include <QTransform>
#include <array>
#include <cmath>
#include <numbers>

namespace tidewatch {
namespace {

using Maker = QPainterPath (*)();

struct Row {
    QStringView name;
    Maker shape;
};

/// A five-pointed star with slightly rounded points that touches the square's edges.
QPainterPath starBody() {
    constexpr int corners = 10;
    constexpr double outer = 0.5;
    constexpr double inner = 0.225;
    constexpr double centreY = 0.53;
    QPainterPath path;
    for (int corner = 0; corner < corners; ++corner) {
        const double radius = corner % 2 == 0 ? outer : inner;
        const double angle = std::numbers::pi * (2.0 * corner / corners - 0.5);
        const QPointF point(0.5 + radius * std::cos(angle), centreY + radius * std::sin(angle));
        if (corner == 0) {
            path.moveTo(point);
        } else {
            path.lineTo(point);
        }
    }
    path.closeSubpath();
    return path;
}

QPainterPath outline(const QPainterPath& shape, double width) {
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setJoinStyle(Qt::RoundJoin);
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

QPainterPath filledStar() {
    const auto body = starBody();
    return fitted(body.united(outline(body, 0.08)));
}

QPainterPath hollowStar() {
    const auto body = starBody();
    constexpr double line = 0.1;
    return fitted(outline(body, line));
}

QPainterPath filledCircle() {
    QPainterPath path;
    path.addEllipse(QRectF(0, 0, 1, 1));
    return path;
}

constexpr std::array table = {
    Row{u"star.fill", filledStar},
    Row{u"star", hollowStar},
    Row{u"circle.fill", filledCircle},
};

}  // namespace

std::optional<QPainterPath> symbolShape(QStringView name) {
    for (const auto& row : table) {
        if (row.name == name) return row.shape();
    }
    return std::nullopt;
}

}  // namespace tidewatch
