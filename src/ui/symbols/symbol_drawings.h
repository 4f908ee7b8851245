#pragma once

#include <QPainterPath>

namespace tidewatch {

// Symbols of our own, each to be filled and as large as fits into a square of side 1 at (0, 0).

/// A five-pointed star with slightly rounded points.
[[nodiscard]] QPainterPath filledStar();
[[nodiscard]] QPainterPath hollowStar();

[[nodiscard]] QPainterPath filledCircle();
/// A window with its bar and the three buttons in it: an application that has no picture of its own.
[[nodiscard]] QPainterPath appWindow();

/// A round bomb with a light on its body and a burning fuse.
[[nodiscard]] QPainterPath bomb();

}  // namespace tidewatch
