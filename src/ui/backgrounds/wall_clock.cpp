#include "ui/backgrounds/wall_clock.h"

#include <chrono>

namespace tidewatch {

double WallClock::secondsSinceReferenceDate() const {
    using namespace std::chrono;
    constexpr Instant referenceDate = sys_days(January / 1 / 2001);
    return duration<double>(clock_.now() - referenceDate).count();
}

}  // namespace tidewatch
