#include "base/calendar_day.h"

#include <fmt/format.h>

namespace tidewatch {

std::chrono::sys_days calendarDay(Instant instant, std::chrono::seconds utcOffset) {
    return std::chrono::floor<std::chrono::days>(instant + utcOffset);
}

DayKey dayKeyOf(std::chrono::sys_days day) {
    const std::chrono::year_month_day date(day);
    return DayKey(fmt::format("{:04}-{:02}-{:02}", static_cast<int>(date.year()),
                              static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day())));
}

}  // namespace tidewatch
