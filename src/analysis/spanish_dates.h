#pragma once

#include <chrono>
#include <string>
#include <string_view>

#include "base/instant.h"

/// Spanish dates: lower-case names, three-letter abbreviations without a dot. Dates and times must be valid.
namespace tidewatch::spanish {

/// "viernes"
[[nodiscard]] std::string_view name(std::chrono::weekday weekday);
/// "vie"
[[nodiscard]] std::string_view abbreviation(std::chrono::weekday weekday);
/// "noviembre"
[[nodiscard]] std::string_view name(std::chrono::month month);
/// "nov"
[[nodiscard]] std::string_view abbreviation(std::chrono::month month);

/// "vie 20 nov"
[[nodiscard]] std::string weekdayAndDay(std::chrono::sys_days day);
/// "Noviembre 2026", as a heading
[[nodiscard]] std::string monthTitle(std::chrono::year_month month);
/// "21 nov 2026 · 09:05"
[[nodiscard]] std::string dateAndTime(const CivilTime& time);
/// "9:05 am"; `hour` 0 to 23, `minute` 0 to 59
[[nodiscard]] std::string timeOfDay(int hour, int minute);
/// "9 am"; `hour` 0 to 23
[[nodiscard]] std::string hourOfDay(int hour);

}  // namespace tidewatch::spanish
