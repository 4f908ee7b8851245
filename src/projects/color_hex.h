#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tidewatch {

/// An opaque sRGB colour, 8 bits per component.
struct RgbColor {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    bool operator==(const RgbColor&) const = default;
};

/// Parses six hexadecimal digits in either letter case, optionally with a leading hash sign and surrounding
/// white space. Returns nullopt for any other form.
[[nodiscard]] std::optional<RgbColor> parseColorHex(std::string_view text);

}  // namespace tidewatch
