#pragma once

#include <QColor>
#include <QPainterPath>
#include <QRectF>

namespace tidewatch {

/// The brand's logo: a clapperboard whose slate is a clock. Its parts as filled paths, in a coordinate system
/// with y growing upward.
struct ClapperDrawing {
    QPainterPath slate;  ///< the stroked outline of the body
    QPainterPath bar;
    QPainterPath hands;
    QPainterPath dot;

    [[nodiscard]] QPainterPath whole() const;
};

/// The dimensions of the logo, in units of the drawing.
struct ClapperMetrics {
    QRectF slate;
    double slateCorner = 0;
    double slateLine = 0;
    double handLine = 0;
    double dotDiameter = 0;
    QRectF bar;  ///< before rotation
    double barCorner = 0;
    double barTurn = 0;  ///< radians, counterclockwise
    QPointF barPivot;
};

[[nodiscard]] ClapperDrawing drawClapper(const ClapperMetrics& metrics);

}  // namespace tidewatch
