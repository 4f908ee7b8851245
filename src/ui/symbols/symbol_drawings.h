#pragma once

#include <QPainterPath>

namespace tidewatch {

// Our own symbols as filled paths, each as large as fits into the unit square at (0, 0).

/// A five-pointed star with slightly rounded points.
[[nodiscard]] QPainterPath filledStar();
[[nodiscard]] QPainterPath hollowStar();

[[nodiscard]] QPainterPath filledCircle();
/// A window with a title bar and three buttons: an application without an icon.
[[nodiscard]] QPainterPath appWindow();

/// Two rows of two squares, with the margin of the icon font's glyphs.
[[nodiscard]] QPainterPath fourSquares();

/// A round bomb with a light on its body and a burning fuse.
[[nodiscard]] QPainterPath bomb();

}  // namespace tidewatch
