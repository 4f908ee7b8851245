#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tidewatch {

/// An opaque sRGB colour in 256 steps a component.
struct RgbColor {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    bool operator==(const RgbColor&) const = default;
};

/// Reads six hexadecimal digits in either letter case, with or without a hash sign before them and white
/// space around them. Nothing of any other form.
[[nodiscard]] std::optional<RgbColor> parseColorHex(std::string_view text);

}  // namespace tidewatch
