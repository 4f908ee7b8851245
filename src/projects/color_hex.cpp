#include "projects/color_hex.h"

#include <charconv>

#include "base/trim.h"

namespace tidewatch {

std::optional<RgbColor> parseColorHex(std::string_view text) {
    auto digits = trimmed(text);
    if (digits.starts_with('#')) digits.remove_prefix(1);
    if (digits.size() != 6) return std::nullopt;
    std::uint32_t value = 0;
    const auto* end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, value, 16);
    if (error != std::errc() || stop != end) return std::nullopt;
    return RgbColor{static_cast<std::uint8_t>(value >> 16), static_cast<std::uint8_t>(value >> 8),
                    static_cast<std::uint8_t>(value)};
}

}  // namespace tidewatch
