#include "base/parse_real.h"

#include <algorithm>
#include <locale>
#include <sstream>
#include <string>

namespace tidewatch {
namespace {

// Removes leading decimal digits from `text` and returns their number.
std::size_t takeDigits(std::string_view& text) {
    const auto count = std::min(text.find_first_not_of("0123456789"), text.size());
    text.remove_prefix(count);
    return count;
}

bool takeOneOf(std::string_view& text, std::string_view characters) {
    if (text.empty() || characters.find(text.front()) == std::string_view::npos) return false;
    text.remove_prefix(1);
    return true;
}

// Streams also accept plus signs and hexadecimal digits.
bool isDecimal(std::string_view text) {
    takeOneOf(text, "-");
    auto digits = takeDigits(text);
    if (takeOneOf(text, ".")) digits += takeDigits(text);
    if (digits == 0) return false;
    if (takeOneOf(text, "eE")) {
        takeOneOf(text, "+-");
        if (takeDigits(text) == 0) return false;
    }
    return text.empty();
}

}  // namespace

// Not every standard library has std::from_chars for double, and std::strtod depends on the locale.
std::optional<double> parseReal(std::string_view text) {
    if (!isDecimal(text)) return std::nullopt;
    std::istringstream stream{std::string(text)};
    stream.imbue(std::locale::classic());
    double number = 0;
    stream >> number;
    return stream.fail() ? std::nullopt : std::optional(number);
}

}  // namespace tidewatch
