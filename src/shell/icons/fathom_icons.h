#pragma once

#include <QBrush>
#include <QColor>
#include <QImage>
#include <QPainterPath>
#include <vector>

namespace tidewatch::fathom {

/// Width of the menu-bar icon, in points, and its height.
inline constexpr double menubarIconWidth = 17;
inline constexpr double menubarIconHeight = 15;

/// The filled shape of the brand's logo, in points, y growing downward.
[[nodiscard]] const QPainterPath& menubarIconShape();

/// The same in one colour on a transparent background, `scale` pixels per point.
[[nodiscard]] QImage menubarIcon(double scale, const QColor& tint);

struct FilledShape {
    QPainterPath path;
    QBrush fill;
};

/// The side of the program icon's drawing, in points.
inline constexpr double appIconUnits = 160;

/// The program icon, the brand's logo on a rounded square: its shapes from back to front, in points, y
/// growing upward.
[[nodiscard]] std::vector<FilledShape> appIconShapes();

/// The same with sides of `pixels`, 1 or more.
[[nodiscard]] QImage appIcon(int pixels);

}  // namespace tidewatch::fathom
