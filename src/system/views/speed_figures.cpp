#include "system/views/speed_figures.h"

#include <algorithm>

#include "system/speed_scale.h"
#include "system/views/system_texts.h"

namespace tidewatch {

std::vector<SystemFigure> speedFigures(const SpeedTester& speed, const QString& averageTitle) {
    return {{.id = averageTitle, .value = wholeNumber(speed.avgMbps()) + " Mbps"},
            {.id = "PICO", .value = wholeNumber(speed.peakMbps()) + " Mbps"},
            {.id = "PING", .value = wholeNumber(speed.pingMs()) + " ms"}};
}

double scaleMaxOf(const SpeedTester& speed) {
    return niceMax(std::max({speed.peakMbps(), speed.currentMbps(), speed.avgMbps()}));
}

void startOrCancel(SpeedTester& speed) {
    if (speed.phase() == SpeedTester::Phase::downloading) {
        speed.cancel();
    } else {
        speed.startTest();
    }
}

}  // namespace tidewatch
