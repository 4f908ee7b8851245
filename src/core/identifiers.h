#pragma once

#include <string_view>

namespace tidewatch {

/// This program's own windows; never booked as an application in front.
inline constexpr std::string_view ownApplicationId = "com.brightlooms.tidewatch";

/// What the seconds of the built-in games are booked under.
inline constexpr std::string_view gamesApplicationId = "com.brightlooms.fathom.games";

}  // namespace tidewatch
