#include "claude/log_line.h"

#include <cstdint>
#include <string>

#include "claude/json_numbers.h"
#include "claude/log_stamp.h"
#include "core/utf8.h"

namespace tidewatch {
namespace {

using simdjson::dom::element;
using simdjson::dom::object;

// Larger lines are rare; what the parser allocates for one is not kept.
constexpr std::size_t maxKeptCapacity = std::size_t(1) << 20;

// The members of a log line that are read, each the last of its name; nullopt without it, or if its value is
// of another type.
struct LogMembers {
    // What stands in the message, or at the top level.
    struct Holder {
        std::optional<TokenCounts> usage;
        std::optional<std::string_view> model;
    };

    std::optional<std::string_view> timestamp;
    std::optional<std::string_view> createdAt;
    Holder top;
    std::optional<Holder> message;
};

// The count in `tokens` that a key of the usage means; null for another key.
std::int64_t* countOf(std::string_view key, TokenCounts& tokens) {
    if (key == "input_tokens") return &tokens.input;
    if (key == "output_tokens") return &tokens.output;
    if (key == "cache_creation_input_tokens") return &tokens.cacheWrite;
    if (key == "cache_read_input_tokens") return &tokens.cacheRead;
    return nullptr;
}

bool mayBeOfNumber(char c) {
    return (c >= '0' && c <= '9') || c == '-' || c == '+' || c == '.' || c == 'e' || c == 'E';
}

bool mayBeginNumber(char c) {
    return mayBeOfNumber(c) && c != 'e' && c != 'E';
}

// The line with 0.5 for every number that is no 64-bit integer: the parser refuses numbers out of its range,
// which are JSON all the same.
std::string withNumbersInRange(std::string_view line) {
    constexpr std::string_view substitute = "0.5";
    std::string result(line);
    bool inString = false;
    for (std::size_t i = 0; i < result.size(); ++i) {
        if (inString) {
            if (result[i] == '\\') {
                ++i;
            } else if (result[i] == '"') {
                inString = false;
            }
        } else if (result[i] == '"') {
            inString = true;
        } else if (mayBeginNumber(result[i])) {
            auto end = i;
            while (end < result.size() && mayBeOfNumber(result[end])) ++end;
            const auto number = std::string_view(result).substr(i, end - i);
            if (number.size() >= substitute.size() && isJsonNumber(number) && !integerOf(number)) {
                const std::string blanks(number.size() - substitute.size(), ' ');
                result.replace(i, end - i, std::string(substitute) + blanks);
            }
            i = end - 1;
        }
    }
    return result;
}

template <class Type>
std::optional<Type> valueOf(const element& value) {
    Type result;
    return value.get(result) == simdjson::SUCCESS ? std::optional<Type>(result) : std::nullopt;
}

std::optional<TokenCounts> tokensOf(const element& usage) {
    const auto members = valueOf<object>(usage);
    if (!members) return std::nullopt;
    TokenCounts tokens;
    for (const auto& [key, value] : *members) {
        if (auto* count = countOf(key, tokens)) *count = valueOf<std::int64_t>(value).value_or(0);
    }
    return tokens;
}

void readMember(std::string_view key, const element& value, LogMembers::Holder& holder) {
    if (key == "usage") holder.usage = tokensOf(value);
    if (key == "model") holder.model = valueOf<std::string_view>(value);
}

std::optional<LogMembers::Holder> holderOf(const element& message) {
    const auto members = valueOf<object>(message);
    if (!members) return std::nullopt;
    LogMembers::Holder holder;
    for (const auto& [key, value] : *members) readMember(key, value, holder);
    return holder;
}

std::optional<LogMembers> readMembers(simdjson::dom::parser& parser, std::string_view line) {
    constexpr bool copyForPadding = false;
    element root;
    auto error = parser.parse(line.data(), line.size(), copyForPadding).get(root);
    // A copy is padded by the parser.
    if (error == simdjson::NUMBER_ERROR) error = parser.parse(withNumbersInRange(line)).get(root);
    object top;
    if (error != simdjson::SUCCESS || root.get(top) != simdjson::SUCCESS) return std::nullopt;
    LogMembers members;
    for (const auto& [key, value] : top) {
        if (key == "timestamp") members.timestamp = valueOf<std::string_view>(value);
        if (key == "created_at") members.createdAt = valueOf<std::string_view>(value);
        if (key == "message") members.message = holderOf(value);
        readMember(key, value, members.top);
    }
    return members;
}

}  // namespace

std::optional<LogLine> LogLineReader::read(std::string_view line) {
    if (line.starts_with(byteOrderMark)) line.remove_prefix(byteOrderMark.size());
    if (parser_.capacity() > maxKeptCapacity) parser_ = simdjson::dom::parser();
    const auto members = readMembers(parser_, line);
    wasJson_ = members.has_value();
    if (!members) return std::nullopt;
    const auto stamp = members->timestamp ? members->timestamp : members->createdAt;
    const auto date = parseLogStamp(stamp.value_or(""));
    const auto& holder = members->message ? *members->message : members->top;
    if (!date || !holder.usage) return std::nullopt;
    if (holder.usage->output <= 0 && holder.usage->input < 1) return std::nullopt;
    return LogLine{*date, *holder.usage, holder.model.value_or("unknown")};
}

}  // namespace tidewatch
