#pragma once

#include <QColor>
#include <QImage>
#include <QPainterPath>

namespace tidewatch::fathom {

/// Width of the menu-bar icon, in points, and its height.
inline constexpr double menubarIconWidth = 17;
inline constexpr double menubarIconHeight = 15;

/// The area of the brand's figure, in points, y growing downward; to be filled with one colour.
[[nodiscard]] QPainterPath menubarIconShape();

/// The same drawn in one colour on clear ground, `scale` pixels to a point.
[[nodiscard]] QImage menubarIcon(double scale, const QColor& tint);

/// The brand's figure on a rounded square of `pixels` a side, 1 or more.
[[nodiscard]] QImage appIcon(int pixels);

}  // namespace tidewatch::fathom
