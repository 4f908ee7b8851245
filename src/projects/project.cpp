#include "projects/project.h"

#include "base/system_shades.h"

namespace tidewatch {
namespace {

constexpr RgbColor opaque(std::uint32_t shade) {
    const auto part = [shade](unsigned shift) { return static_cast<std::uint8_t>(shade >> shift & 0xFFU); };
    return {part(16), part(8), part(0)};
}

}  // namespace

RgbColor Project::color() const {
    return parseColorHex(colorHex).value_or(opaque(systemGreen));
}

}  // namespace tidewatch
