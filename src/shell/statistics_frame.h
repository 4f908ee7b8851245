#pragma once

#include "platform/api/screens.h"

namespace tidewatch {

/// The statistics window's frame, title bar included, within a screen's visible frame: centred, filling it
/// except for a margin, within minimum and maximum size. On a small screen it is larger than the screen.
[[nodiscard]] platform::Rectangle statisticsFrame(const platform::Rectangle& visibleFrame);

/// The same on the main screen, else on the first one, else on an assumed one of 1440 by 900 points.
[[nodiscard]] platform::Rectangle statisticsFrame(const platform::Screens& screens);

}  // namespace tidewatch
