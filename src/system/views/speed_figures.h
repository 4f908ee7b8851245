#pragma once

#include <QString>
#include <vector>

#include "system/speed_tester.h"
#include "system/views/system_rows.h"

namespace tidewatch {

/// The average, called `averageTitle`, the peak and the latency.
[[nodiscard]] std::vector<SystemFigure> speedFigures(const SpeedTester& speed, const QString& averageTitle);

/// The end of the gauge's scale, with room for all of its speeds.
[[nodiscard]] double scaleMaxOf(const SpeedTester& speed);

/// Starts a test, or cancels the running one.
void startOrCancel(SpeedTester& speed);

}  // namespace tidewatch
