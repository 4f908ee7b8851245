#pragma once

#include <QPainterPath>

namespace tidewatch {

/// The family of the icon font.
inline constexpr char16_t symbolFontFamily[] = u"Material Icons";

/// The outline of an icon font glyph, its em square scaled to the unit square at (0, 0). Empty if the font is
/// not installed or has no such glyph. The font is loaded on the first call. Main thread only.
[[nodiscard]] QPainterPath symbolGlyph(char32_t codePoint);

}  // namespace tidewatch
