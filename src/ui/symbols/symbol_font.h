#pragma once

#include <QPainterPath>

namespace tidewatch {

/// The family of the desktop's icon font that symbols come from.
inline constexpr char16_t symbolFontFamily[] = u"Material Icons";

/// The outline of a glyph of the icon font, its em square brought to a square of side 1 with the top left
/// corner at (0, 0). Empty where the font is not installed or has no such glyph. The font is not loaded
/// before the first call. Main thread only.
[[nodiscard]] QPainterPath symbolGlyph(char32_t codePoint);

}  // namespace tidewatch
