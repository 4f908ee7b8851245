#include "claude/log_stamp.h"

#include <cstddef>

#include "base/characters.h"

namespace tidewatch {
namespace {

constexpr std::string_view stampForm = "0000-00-00T00:00:00";

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool hasStampForm(std::string_view text) {
    if (text.size() != stampForm.size()) return false;
    bool fits = true;
    for (std::size_t i = 0; i < stampForm.size(); ++i) {
        const char form = stampForm[i];
        fits &= form == '0' ? isDigit(text[i]) : text[i] == form || (form == 'T' && text[i] == ' ');
    }
    return fits;
}

template <std::size_t Length>
unsigned numberAt(const char* digits) {
    unsigned number = 0;
    for (std::size_t i = 0; i < Length; ++i) number = number * 10 + static_cast<unsigned>(digits[i] - '0');
    return number;
}

}  // namespace

std::optional<std::chrono::sys_seconds> parseLogStamp(std::string_view stamp) {
    auto text = stamp.substr(0, stampForm.size());
    if (!hasStampForm(text)) return std::nullopt;
    // An accent after the 19th byte belongs to the 19th character, which is then no digit.
    const bool mayGoOn = stamp.size() > text.size() && static_cast<unsigned char>(stamp[text.size()]) >= 0x80;
    if (mayGoOn && firstCharacters(stampForm.size(), stamp).size() != text.size()) return std::nullopt;
    const std::chrono::year_month_day date(std::chrono::year(static_cast<int>(numberAt<4>(text.data() + 0))),
                                           std::chrono::month(numberAt<2>(text.data() + 5)),
                                           std::chrono::day(numberAt<2>(text.data() + 8)));
    const auto hour = numberAt<2>(text.data() + 11);
    const auto minute = numberAt<2>(text.data() + 14);
    const auto second = numberAt<2>(text.data() + 17);
    if (!date.ok() || static_cast<int>(date.year()) < 1 || hour > 23 || minute > 59 || second > 59)
        return std::nullopt;
    return std::chrono::sys_days(date) + std::chrono::hours(hour) + std::chrono::minutes(minute) +
           std::chrono::seconds(second);
}

}  // namespace tidewatch
