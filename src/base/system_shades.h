#pragma once

#include <cstdint>

namespace tidewatch {

// The green and gray of status indicators, for desktops that define no such system colours: red in bits 16 to
// 23, green in 8 to 15, blue in 0 to 7. Legible on light and dark backgrounds.
inline constexpr std::uint32_t systemGreen = 0x34C759;
inline constexpr std::uint32_t systemGray = 0x8E8E93;

}  // namespace tidewatch
