#pragma once

#include <QPainterPath>

namespace tidewatch {

// Symbols of our own, each to be filled and as large as fits into a square of side 1 at (0, 0).

/// A five-pointed star with slightly rounded points.
[[nodiscard]] QPainterPath filledStar();
[[nodiscard]] QPainterPath hollowStar();

[[nodiscard]] QPainterPath filledCircle();
/// The outline of an application that has no picture of its own.
[[nodiscard]] QPainterPath appTile();

/// A round bomb with a light on its body and a burning fuse.
[[nodiscard]] QPainterPath bomb();

}  // namespace tidewatch
