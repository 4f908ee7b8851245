#pragma once

#include <cstdint>

namespace tidewatch {

/// An sRGB colour; every component from 0 to 1, not premultiplied.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    /// From a 24-bit value: red in bits 16 to 23, green in 8 to 15, blue in 0 to 7.
    [[nodiscard]] static constexpr Color hex6(std::uint32_t value) {
        const auto part = [value](unsigned shift) { return ((value >> shift) & 0xFFU) / 255.0; };
        return {part(16), part(8), part(0)};
    }

    /// An opaque grey of this brightness.
    [[nodiscard]] static constexpr Color whiteLevel(double brightness) {
        return {brightness, brightness, brightness};
    }

    /// White at this opacity.
    [[nodiscard]] static constexpr Color whiteAt(double opacity) { return {1, 1, 1, opacity}; }

    /// Black at this opacity.
    [[nodiscard]] static constexpr Color blackAt(double opacity) { return {0, 0, 0, opacity}; }

    /// The same colour, its opacity multiplied by `opacity`.
    [[nodiscard]] constexpr Color at(double opacity) const { return {red, green, blue, alpha * opacity}; }

    bool operator==(const Color&) const = default;
};

}  // namespace tidewatch
