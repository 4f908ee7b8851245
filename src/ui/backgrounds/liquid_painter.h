#pragma once

#include <QImage>
#include <QPointF>
#include <QSize>
#include <QSizeF>
#include <array>

#include "ui/backgrounds/panel_shape.h"

namespace tidewatch {

/// The phases of the three animations, in degrees, 0 inclusive to 360 exclusive.
struct LiquidAngles {
    double spectrum = 0;  ///< turns once in 18 seconds
    double glints = 0;    ///< once in 9
    double orbs = 0;      ///< once in 14
};

/// `seconds` since any fixed moment, not below 0.
[[nodiscard]] LiquidAngles liquidAngles(double seconds);

/// A highlight, in the coordinates of its box.
struct SpecularOrb {
    QPointF centre;
    double diameter = 0;
};
[[nodiscard]] std::array<SpecularOrb, 4> specularOrbs(QSizeF box, double orbAngle);

/// The parameters of a reduced image of the liquid.
struct LiquidSetting {
    QSize pixels;          ///< of the small image
    QSizeF points;         ///< of the panel that it represents, unscaled
    double intensity = 1;  ///< strength of the colours, 0 to 1
    Ground ground = Ground::translucent;

    bool operator==(const LiquidSetting&) const = default;
};

/// Paints the layers of the liquid into a small image: everything in it is soft, so that scaling it up is not
/// noticeable. The colour and highlight wheels are painted once and then only rotated, the first one blurred
/// beforehand: an isotropic blur is invariant under rotation.
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

/// Draws a small image over the panel, rounded if its ground is translucent, with a thin border.
void paintLiquid(QPainter& painter, const QImage& layers, const PanelShape& shape);

}  // namespace tidewatch
