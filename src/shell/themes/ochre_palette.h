#pragma once

#include "shell/themes/dashboard_style.h"

/// Shorter names for the colours of tiers; only the gray of what has no tier is its own.
namespace tidewatch::ochre_palette {

inline constexpr Color productive = DashboardStyle::tierProductive;
inline constexpr Color neutral = DashboardStyle::tierNeutral;
inline constexpr Color distracting = DashboardStyle::tierDistracting;
inline constexpr Color amber = DashboardStyle::amber;
inline constexpr Color other = systemColor(SystemColor::gray, Appearance::dark).at(0.5);

}  // namespace tidewatch::ochre_palette
