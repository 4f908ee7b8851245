#pragma once

#include <QColor>

namespace tidewatch {

/// The minimum contrast ratio of text.
inline constexpr double minContrast = 4.5;

/// The contrast ratio of two opaque colours in any order, 1 to 21.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

/// `top`, which may be translucent, blended over the opaque `ground`.
[[nodiscard]] QColor blendedOver(const QColor& top, const QColor& ground);

/// `color`, moved towards black or white just far enough for the minimum contrast on `ground`.
[[nodiscard]] QColor legibleOn(const QColor& ground, const QColor& color);

}  // namespace tidewatch
