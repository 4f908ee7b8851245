#pragma once

#include <QColor>
#include <QImage>
#include <QPainterPath>

namespace tidewatch::fathom {

/// Width of the menu-bar icon, in points, and its height.
inline constexpr double menubarIconWidth = 17;
inline constexpr double menubarIconHeight = 15;

/// The filled shape of the brand's logo, in points, y growing downward.
[[nodiscard]] QPainterPath menubarIconShape();

/// The same in one colour on a transparent background, `scale` pixels per point.
[[nodiscard]] QImage menubarIcon(double scale, const QColor& tint);

/// The brand's logo on a rounded square with sides of `pixels`, 1 or more.
[[nodiscard]] QImage appIcon(int pixels);

}  // namespace tidewatch::fathom
