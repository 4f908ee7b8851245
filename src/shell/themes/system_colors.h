#pragma once

#include "base/system_shades.h"
#include "shell/themes/color.h"

namespace tidewatch {

/// Dark text on a light background, or light text on a dark one.
enum class Appearance { light, dark };

/// The colours that belong to the desktop rather than to the brand.
enum class SystemColor { primary, secondary, green, gray };

/// Their values on desktops without such system colours: text is slightly transparent black or white,
/// secondary text at just over half opacity, and the green and gray of status indicators. The gray is the
/// same in both appearances, because palettes without an appearance use it too.
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
