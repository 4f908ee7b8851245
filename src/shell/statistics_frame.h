#pragma once

#include "platform/api/screens.h"

namespace tidewatch {

/// Where the statistics window belongs on what panels leave free of a screen, title bar included: in the
/// middle, filling it but for a margin, within the smallest and the largest size. On a small screen it is
/// larger than the screen.
[[nodiscard]] platform::Rectangle statisticsFrame(const platform::Rectangle& visibleFrame);

/// The same on the main screen; without one on the first, and without any on one of 1440 by 900 points.
[[nodiscard]] platform::Rectangle statisticsFrame(const platform::Screens& screens);

}  // namespace tidewatch
