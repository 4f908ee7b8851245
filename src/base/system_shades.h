#pragma once

#include <cstdint>

namespace tidewatch {

// The green and the gray of the desktop's status lights, for a desktop that has no names for them: red in
// bits 16 to 23, green in 8 to 15, blue in 0 to 7. Both stand on light and on dark ground.
inline constexpr std::uint32_t systemGreen = 0x34C759;
inline constexpr std::uint32_t systemGray = 0x8E8E93;

}  // namespace tidewatch
