#pragma once

#include <string_view>

namespace tidewatch {

/// This program's own windows; never booked as the frontmost application.
inline constexpr std::string_view ownApplicationId = "com.brightlooms.tidewatch";

/// The application that seconds in the built-in games are booked to.
inline constexpr std::string_view gamesApplicationId = "com.brightlooms.fathom.games";

}  // namespace tidewatch
