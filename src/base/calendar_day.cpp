#include "base/calendar_day.h"

#include <fmt/format.h>

#include <algorithm>

namespace tidewatch {
namespace {

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

int number(std::string_view digits) {
    int value = 0;
    for (const char digit : digits) value = value * 10 + (digit - '0');
    return value;
}

}  // namespace

std::chrono::sys_days calendarDay(Instant instant, std::chrono::seconds utcOffset) {
    return std::chrono::floor<std::chrono::days>(instant + utcOffset);
}

DayKey toDayKey(std::chrono::sys_days day) {
    const std::chrono::year_month_day date(day);
    return DayKey(fmt::format("{:04}-{:02}-{:02}", static_cast<int>(date.year()),
                              static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day())));
}

std::optional<std::chrono::sys_days> parseDayKey(std::string_view text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
    const auto year = text.substr(0, 4);
    const auto month = text.substr(5, 2);
    const auto day = text.substr(8, 2);
    const auto areDigits = [](std::string_view part) { return std::ranges::all_of(part, isDigit); };
    if (!areDigits(year) || !areDigits(month) || !areDigits(day)) return std::nullopt;
    const std::chrono::year_month_day date{std::chrono::year(number(year)),
                                           std::chrono::month(static_cast<unsigned>(number(month))),
                                           std::chrono::day(static_cast<unsigned>(number(day)))};
    return date.ok() ? std::optional(std::chrono::sys_days(date)) : std::nullopt;
}

}  // namespace tidewatch
