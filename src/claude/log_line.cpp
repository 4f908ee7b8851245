#include "claude/log_line.h"

#include <charconv>
#include <string>
#include <system_error>
#include <utility>

#include "claude/log_stamp.h"
#include "core/utf8.h"

namespace tidewatch {
namespace {

using simdjson::dom::element;
using simdjson::dom::object;

// Larger lines are rare; what the parser allocates for one is not kept.
constexpr std::size_t maxKeptCapacity = std::size_t(1) << 20;

bool isNumberByte(char c) {
    return (c >= '0' && c <= '9') || c == '-' || c == '+' || c == '.' || c == 'e' || c == 'E';
}

std::size_t skipDigits(std::string_view text, std::size_t position) {
    while (position < text.size() && text[position] >= '0' && text[position] <= '9') ++position;
    return position;
}

// Whether all of `text` is a number by the grammar of JSON.
bool isJsonNumber(std::string_view text) {
    std::size_t next = text.starts_with('-') ? 1 : 0;
    const auto integer = next;
    next = skipDigits(text, next);
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

bool fitsIntoInteger(std::string_view number) {
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    return error == std::errc() && end == number.data() + number.size();
}

// The line with 0.5 for every number that is no 64-bit integer: the parser refuses numbers out of its range,
// which are JSON all the same.
std::string withNumbersInRange(std::string_view line) {
    constexpr std::string_view substitute = "0.5";
    std::string result(line);
    bool inString = false;
    for (std::size_t i = 0; i < result.size(); ++i) {
        if (inString) {
            if (result[i] == '\\')
                ++i;
            else if (result[i] == '"')
                inString = false;
        } else if (result[i] == '"') {
            inString = true;
        } else if (isNumberByte(result[i]) && (result[i] != 'e' && result[i] != 'E')) {
            auto end = i;
            while (end < result.size() && isNumberByte(result[end])) ++end;
            const auto number = std::string_view(result).substr(i, end - i);
            if (number.size() >= substitute.size() && isJsonNumber(number) && !fitsIntoInteger(number)) {
                result.replace(i, end - i, std::string(substitute) + std::string(end - i - 3, ' '));
            }
            i = end - 1;
        }
    }
    return result;
}

/// The members that are read, each the last of its name.
struct Members {
    std::optional<std::string_view> timestamp;
    std::optional<std::string_view> createdAt;
    std::optional<object> message;
    std::optional<object> usage;
    std::optional<std::string_view> model;
};

template <class Type>
std::optional<Type> valueOf(const element& value) {
    Type result;
    return value.get(result) == simdjson::SUCCESS ? std::optional<Type>(result) : std::nullopt;
}

Members membersOf(const object& json) {
    Members members;
    for (const auto& [key, value] : json) {
        if (key == "timestamp")
            members.timestamp = valueOf<std::string_view>(value);
        else if (key == "created_at")
            members.createdAt = valueOf<std::string_view>(value);
        else if (key == "message")
            members.message = valueOf<object>(value);
        else if (key == "usage")
            members.usage = valueOf<object>(value);
        else if (key == "model")
            members.model = valueOf<std::string_view>(value);
    }
    return members;
}

TokenCounts tokensOf(const object& usage) {
    TokenCounts tokens;
    for (const auto& [key, value] : usage) {
        const auto count = [&value = value] { return valueOf<std::int64_t>(value).value_or(0); };
        if (key == "input_tokens")
            tokens.input = count();
        else if (key == "output_tokens")
            tokens.output = count();
        else if (key == "cache_creation_input_tokens")
            tokens.cacheWrite = count();
        else if (key == "cache_read_input_tokens")
            tokens.cacheRead = count();
    }
    return tokens;
}

}  // namespace

bool LogLineReader::parse(std::string_view line, element& root) {
    constexpr bool copyForPadding = false;
    auto error = parser_.parse(line.data(), line.size(), copyForPadding).get(root);
    if (error == simdjson::NUMBER_ERROR) {
        // Copied to be padded.
        error = parser_.parse(withNumbersInRange(line)).get(root);
    }
    return error == simdjson::SUCCESS;
}

std::optional<LogLine> LogLineReader::read(std::string_view line) {
    if (line.starts_with(byteOrderMark)) line.remove_prefix(byteOrderMark.size());
    if (parser_.capacity() > maxKeptCapacity) parser_ = simdjson::dom::parser();
    element root;
    object top;
    if (!parse(line, root) || root.get(top) != simdjson::SUCCESS) return std::nullopt;
    auto members = membersOf(top);
    const auto stamp = members.timestamp ? members.timestamp : members.createdAt;
    const auto date = parseLogStamp(stamp.value_or(""));
    if (members.message) members = membersOf(*members.message);
    if (!date || !members.usage) return std::nullopt;
    const auto tokens = tokensOf(*members.usage);
    if (tokens.output <= 0 && tokens.input < 1) return std::nullopt;
    return LogLine{*date, tokens, members.model.value_or("unknown")};
}

}  // namespace tidewatch
