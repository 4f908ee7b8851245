#include "claude/log_stamp.h"

#include <algorithm>
#include <cstddef>

#include "base/characters.h"

namespace tidewatch {
namespace {

constexpr std::string_view stampForm = "0000-00-00T00:00:00";

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool hasStampForm(std::string_view text) {
    return std::ranges::equal(text, stampForm, [](char c, char form) {
        return form == '0' ? isDigit(c) : c == form || (c == ' ' && form == 'T');
    });
}

unsigned numberAt(std::string_view text, std::size_t position, std::size_t length) {
    unsigned number = 0;
    for (const char c : text.substr(position, length)) number = number * 10 + static_cast<unsigned>(c - '0');
    return number;
}

}  // namespace

std::optional<std::chrono::sys_seconds> parseLogStamp(std::string_view stamp) {
    auto text = stamp.substr(0, stampForm.size());
    if (!hasStampForm(text)) return std::nullopt;
    // An accent after the 19th byte belongs to the 19th character, which is then no digit.
    const bool mayGoOn = stamp.size() > text.size() && static_cast<unsigned char>(stamp[text.size()]) >= 0x80;
    if (mayGoOn && firstCharacters(stampForm.size(), stamp).size() != text.size()) return std::nullopt;
    const std::chrono::year_month_day date(std::chrono::year(static_cast<int>(numberAt(text, 0, 4))),
                                           std::chrono::month(numberAt(text, 5, 2)),
                                           std::chrono::day(numberAt(text, 8, 2)));
    const auto hour = numberAt(text, 11, 2);
    const auto minute = numberAt(text, 14, 2);
    const auto second = numberAt(text, 17, 2);
    if (!date.ok() || static_cast<int>(date.year()) < 1 || hour > 23 || minute > 59 || second > 59)
        return std::nullopt;
    return std::chrono::sys_days(date) + std::chrono::hours(hour) + std::chrono::minutes(minute) +
           std::chrono::seconds(second);
}

}  // namespace tidewatch
