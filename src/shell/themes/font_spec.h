#pragma once

namespace tidewatch {

/// The role of a font; `ui` maps it to families on this machine.
enum class FontRole {
    serif,             ///< the brand's serif
    mono,              ///< the brand's monospaced family
    sans,              ///< the brand's sans serif
    system,            ///< the desktop's own
    systemRounded,     ///< a rounded companion of it
    systemSerif,       ///< a serif companion of it
    systemMonospaced,  ///< the desktop's own monospaced
};

enum class FontWeight { light, regular, medium, semibold, bold };

/// Whether all ten digits have the same width.
enum class Digits { proportional, monospaced };

/// A font as the themes ask for it.
struct FontSpec {
    FontRole role = FontRole::system;
    double size = 12;  ///< in points of the unscaled drawing
    FontWeight weight = FontWeight::regular;
    Digits digits = Digits::proportional;

    bool operator==(const FontSpec&) const = default;
};

}  // namespace tidewatch
