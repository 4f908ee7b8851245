#pragma once

#include <QColor>

namespace tidewatch {

/// What of text must stand out from its ground at least, as a ratio of luminances.
inline constexpr double minContrast = 4.5;

/// The ratio of the luminances of two opaque colours, from 1 to 21, whichever is the lighter.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

/// What is seen of `top`, which may be translucent, over the opaque `ground`.
[[nodiscard]] QColor blendedOver(const QColor& top, const QColor& ground);

/// `color`, brought towards black or white just so far that it has the least contrast on `ground`.
[[nodiscard]] QColor legibleOn(const QColor& ground, const QColor& color);

}  // namespace tidewatch
