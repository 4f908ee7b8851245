#pragma once

#include <QColor>
#include <QPainterPath>
#include <QSizeF>

class QPainter;

namespace tidewatch {

/// Whether the desktop behind a panel may show through it.
enum class Ground { translucent, opaque };

/// The geometry of a panel in the painter's pixels, its top left corner at (0, 0).
struct PanelShape {
    QSizeF size;
    double cornerRadius = 0;
    double unit = 1;  ///< pixels to a point of the unscaled drawing
    Ground ground = Ground::translucent;

    [[nodiscard]] QRectF bounds() const { return {QPointF(0, 0), size}; }

    /// The rounded panel.
    [[nodiscard]] QPainterPath outline() const;

    /// The area to fill: the rounded panel, or its whole rectangle if the window does the rounding.
    [[nodiscard]] QPainterPath area() const;
};

/// Draws a border inside the panel's edge; `width` in points of the unscaled drawing, but at least one screen
/// pixel.
void drawBorder(QPainter& painter, const PanelShape& shape, const QColor& color, double width);

}  // namespace tidewatch
