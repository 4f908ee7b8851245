#include "claude/json_numbers.h"

#include <charconv>
#include <cstddef>
#include <system_error>

namespace tidewatch {
namespace {

std::size_t skipDigits(std::string_view text, std::size_t position) {
    while (position < text.size() && text[position] >= '0' && text[position] <= '9') ++position;
    return position;
}

}  // namespace

bool isJsonNumber(std::string_view text) {
    const std::size_t integer = text.starts_with('-') ? 1 : 0;
    auto next = skipDigits(text, integer);
    if (next == integer || (text[integer] == '0' && next > integer + 1)) return false;
    if (next < text.size() && text[next] == '.') {
        const auto fraction = ++next;
        next = skipDigits(text, next);
        if (next == fraction) return false;
    }
    if (next < text.size() && (text[next] == 'e' || text[next] == 'E')) {
        ++next;
        if (next < text.size() && (text[next] == '+' || text[next] == '-')) ++next;
        const auto exponent = next;
        next = skipDigits(text, next);
        if (next == exponent) return false;
    }
    return next == text.size();
}

std::optional<std::int64_t> integerOf(std::string_view number) {
    std::int64_t value = 0;
    const auto* end = number.data() + number.size();
    const auto [last, error] = std::from_chars(number.data(), end, value);
    return error == std::errc() && last == end ? std::optional(value) : std::nullopt;
}

}  // namespace tidewatch
