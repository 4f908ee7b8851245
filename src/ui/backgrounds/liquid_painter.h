#pragma once

#include <QImage>
#include <QPointF>
#include <QSize>
#include <QSizeF>
#include <array>

#include "ui/backgrounds/panel_shape.h"

namespace tidewatch {

/// Where the three movements of the liquid stand, in degrees from 0 up to but not including 360.
struct LiquidAngles {
    double spectrum = 0;  ///< turns once in 18 seconds
    double glints = 0;    ///< once in 9
    double orbs = 0;      ///< once in 14
};

/// `seconds` since any fixed moment, not below 0.
[[nodiscard]] LiquidAngles liquidAngles(double seconds);

/// A spot of light, in the measures of the box that it moves in.
struct SpecularOrb {
    QPointF centre;
    double diameter = 0;
};
[[nodiscard]] std::array<SpecularOrb, 4> specularOrbs(QSizeF box, double orbAngle);

/// What a small image of the liquid is painted for.
struct LiquidSetting {
    QSize pixels;          ///< of the small image
    QSizeF points;         ///< of the panel that it stands for, unscaled
    double intensity = 1;  ///< strength of the colours, 0 to 1
    Ground ground = Ground::translucent;

    bool operator==(const LiquidSetting&) const = default;
};

/// The layers of the liquid in a small image: everything in it is soft, so that it can be scaled up without
/// being told from one painted at full size. The two wheels of colour and of light are painted once and then
/// only turned, the first one blurred beforehand: a round blur does not mind the turning.
class LiquidPainter final {
public:
    explicit LiquidPainter(const LiquidSetting& setting);

    [[nodiscard]] const LiquidSetting& setting() const { return setting_; }

    /// Premultiplied; opaque if the ground is.
    [[nodiscard]] QImage paint(const LiquidAngles& angles) const;

private:
    LiquidSetting setting_;
    QImage spectrum_;
    QImage glints_;
};

/// Lays a small image over the panel, rounded if its ground is translucent, with a thin stroke at the edge.
void paintLiquid(QPainter& painter, const QImage& layers, const PanelShape& shape);

}  // namespace tidewatch
