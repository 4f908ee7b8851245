#pragma once

namespace tidewatch {

/// The end of a gauge's scale for speeds up to `mbps`, in megabits per second: a round number with some room
/// above the speed.
[[nodiscard]] double niceMax(double mbps);

}  // namespace tidewatch
