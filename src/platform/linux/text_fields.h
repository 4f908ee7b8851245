#pragma once

#include <algorithm>
#include <charconv>
#include <concepts>
#include <optional>
#include <string_view>
#include <system_error>

namespace tidewatch::platform {

/// Takes the next line off the front of `text`, without its line feed. Returns nullopt at the end.
[[nodiscard]] inline std::optional<std::string_view> takeLine(std::string_view& text) {
    if (text.empty()) return std::nullopt;
    const auto line = text.substr(0, text.find('\n'));
    text.remove_prefix(line.size() == text.size() ? line.size() : line.size() + 1);
    return line;
}

/// Takes the next field, separated by blanks and tabs, off the front of `line`; empty if there is none.
[[nodiscard]] inline std::string_view takeField(std::string_view& line) {
    constexpr std::string_view blanks = " \t";
    line.remove_prefix(std::min(line.find_first_not_of(blanks), line.size()));
    const auto field = line.substr(0, line.find_first_of(blanks));
    line.remove_prefix(field.size());
    return field;
}

/// The whole of `field` as a number; nullopt if it is none or out of range.
template <std::integral Number>
[[nodiscard]] std::optional<Number> wholeNumber(std::string_view field, int base = 10) {
    Number number{};
    const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), number, base);
    if (error != std::errc() || end != field.data() + field.size() || field.empty()) return std::nullopt;
    return number;
}

/// Takes the next field as a number.
template <std::integral Number>
[[nodiscard]] std::optional<Number> takeNumber(std::string_view& line) {
    return wholeNumber<Number>(takeField(line));
}

}  // namespace tidewatch::platform
