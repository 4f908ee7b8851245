#include "shell/icons/clapper_drawing.h"

#include <QPainterPathStroker>
#include <QTransform>

namespace tidewatch {

namespace {

/// The toolkit flattens curves when it joins or strokes paths, too coarsely for these small dimensions; so
/// paths are enlarged by this factor.
constexpr double fineness = 64;

QPainterPath enlarged(const QPainterPath& path) {
    return QTransform::fromScale(fineness, fineness).map(path);
}

QPainterPath reduced(const QPainterPath& path) {
    return QTransform::fromScale(1 / fineness, 1 / fineness).map(path);
}

QPainterPath line(const QPainterPath& path, double width) {
    QPainterPathStroker stroker;
    stroker.setWidth(width * fineness);
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    return reduced(stroker.createStroke(enlarged(path)).simplified());
}

QPainterPath roundedRectangle(const QRectF& rectangle, double corner) {
    QPainterPath path;
    path.addRoundedRect(rectangle, corner, corner);
    return path;
}

/// Two hands from the centre: the long one to twelve, the short one to four.
QPainterPath hands(const QRectF& slate) {
    const auto centre = slate.center();
    const double reach = slate.height() / 2;
    QPainterPath path(centre + QPointF(0, reach * 0.62));
    path.lineTo(centre);
    path.lineTo(centre + QPointF(reach * 0.5, -reach * 0.3));
    return path;
}

}  // namespace

QPainterPath ClapperDrawing::whole() const {
    return reduced(enlarged(slate) + enlarged(bar) + enlarged(hands) + enlarged(dot));
}

ClapperDrawing drawClapper(const ClapperMetrics& metrics) {
    QPainterPath dot;
    dot.addEllipse(metrics.slate.center(), metrics.dotDiameter / 2, metrics.dotDiameter / 2);
    const auto turn = QTransform()
                          .translate(metrics.barPivot.x(), metrics.barPivot.y())
                          .rotateRadians(metrics.barTurn)
                          .translate(-metrics.barPivot.x(), -metrics.barPivot.y());
    return {
        .slate = line(roundedRectangle(metrics.slate, metrics.slateCorner), metrics.slateLine),
        .bar = turn.map(roundedRectangle(metrics.bar, metrics.barCorner)),
        .hands = line(hands(metrics.slate), metrics.handLine),
        .dot = dot,
    };
}

}  // namespace tidewatch
