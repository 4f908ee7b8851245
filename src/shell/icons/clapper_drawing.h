#pragma once

#include <QColor>
#include <QPainterPath>
#include <QRectF>

namespace tidewatch {

/// The brand's figure: a clapperboard whose slate is a clock. Its parts as paths, filled or to be filled, in
/// a coordinate system whose y grows upward.
struct ClapperDrawing {
    QPainterPath slate;  ///< the outline of the body, as the area of its line
    QPainterPath bar;
    QPainterPath hands;
    QPainterPath dot;

    [[nodiscard]] QPainterPath whole() const;
};

/// What the figure is drawn from; lengths in the units of the drawing.
struct ClapperMetrics {
    QRectF slate;
    double slateCorner = 0;
    double slateLine = 0;
    double handLine = 0;
    double dotDiameter = 0;
    QRectF bar;  ///< before it is turned
    double barCorner = 0;
    double barTurn = 0;  ///< radians, counterclockwise
    QPointF barPivot;
};

[[nodiscard]] ClapperDrawing drawClapper(const ClapperMetrics& metrics);

}  // namespace tidewatch
