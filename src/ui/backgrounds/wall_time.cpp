#include "ui/backgrounds/wall_time.h"

#include <chrono>

namespace tidewatch {

double WallTime::secondsSinceReferenceDate() const {
    using namespace std::chrono;
    constexpr Instant referenceDate = sys_days(January / 1 / 2001);
    return duration<double>(clock_.now() - referenceDate).count();
}

}  // namespace tidewatch
