#pragma once

#include "base/system_shades.h"
#include "shell/themes/color.h"

namespace tidewatch {

/// Whether dark text stands on light ground or light text on dark.
enum class Appearance { light, dark };

/// The colours that belong to the desktop rather than to the brand.
enum class SystemColor { primary, secondary, green, gray };

/// What each is here, where the desktop has no such names: text as black or white that lets a little of
/// its ground through, secondary text at just over half of that, and the green and gray of status lights.
/// The gray stands on both grounds alike, because palettes without an appearance use it too.
[[nodiscard]] constexpr Color systemColor(SystemColor color, Appearance appearance) {
    const bool dark = appearance == Appearance::dark;
    switch (color) {
        case SystemColor::primary:
            return dark ? Color::whiteAt(0.92) : Color::blackAt(0.88);
        case SystemColor::secondary:
            return dark ? Color::whiteAt(0.58) : Color::blackAt(0.55);
        case SystemColor::green:
            return Color::hex6(systemGreen);
        case SystemColor::gray:
            return Color::hex6(systemGray);
    }
    return {};
}

}  // namespace tidewatch
