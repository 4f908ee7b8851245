#pragma once

#include <QImage>
#include <QPointF>
#include <QSize>
#include <QSizeF>
#include <array>

#include "shell/style/panel_shape.h"

namespace tidewatch {

/// Where the three movements of the liquid stand, in degrees from 0 up to but not including 360.
struct LiquidAngles {
    double spectrum = 0;  ///< turns once in 18 seconds
    double glints = 0;    ///< once in 9
    double orbs = 0;      ///< once in 14
};

/// `seconds` since any fixed moment, not below 0.
[[nodiscard]] LiquidAngles liquidAngles(double seconds);

/// The four orbs in a box, in its own measures.
struct SpecularOrb {
    QPointF centre;
    double diameter = 0;
};
[[nodiscard]] std::array<SpecularOrb, 4> specularOrbs(QSizeF box, double orbAngle);

/// The moving layers in a small image of `pixels` that stands for a panel of `points`: everything in it is
/// soft, so that it can be scaled up without being told from one painted at full size. Premultiplied;
/// translucent. `intensity` from 0 to 1 is that of the colours.
[[nodiscard]] QImage liquidImage(QSize pixels, QSizeF points, const LiquidAngles& angles, double intensity);

/// Lays a small image over the panel and adds the still sheen and the stroke at the edge.
void paintLiquid(QPainter& painter, const QImage& layers, const PanelShape& shape);

}  // namespace tidewatch
