#include "base/instant.h"

namespace tidewatch {

CivilTime civilTime(Instant instant, std::chrono::seconds utcOffset) {
    using namespace std::chrono;
    const auto local = floor<seconds>(instant) + utcOffset;
    const auto day = floor<days>(local);
    const hh_mm_ss time(local - day);
    return {year_month_day(day), static_cast<int>(time.hours().count()),
            static_cast<int>(time.minutes().count()), static_cast<int>(time.seconds().count())};
}

}  // namespace tidewatch
