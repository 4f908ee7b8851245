#include "claude/strict_line.h"

#include <cstdint>
#include <string>

#include "claude/json_numbers.h"
#include "core/utf8.h"

namespace tidewatch {
namespace {

using simdjson::dom::element;
using simdjson::dom::object;

// Larger lines are rare; what the parser allocates for one is not kept.
constexpr std::size_t maxKeptCapacity = std::size_t(1) << 20;

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

void readMember(std::string_view key, const element& value, LineMembers::Holder& holder) {
    if (isKey(key, "usage")) holder.usage = tokensOf(value);
    if (isKey(key, "model")) holder.model = valueOf<std::string_view>(value);
}

std::optional<LineMembers::Holder> holderOf(const element& message) {
    const auto members = valueOf<object>(message);
    if (!members) return std::nullopt;
    LineMembers::Holder holder;
    for (const auto& [key, value] : *members) readMember(key, value, holder);
    return holder;
}

}  // namespace

std::optional<LineMembers> StrictLineReader::read(std::string_view line) {
    if (line.starts_with(byteOrderMark)) line.remove_prefix(byteOrderMark.size());
    if (parser_.capacity() > maxKeptCapacity) parser_ = simdjson::dom::parser();
    constexpr bool copyForPadding = false;
    element root;
    auto error = parser_.parse(line.data(), line.size(), copyForPadding).get(root);
    // A copy is padded by the parser.
    if (error == simdjson::NUMBER_ERROR) error = parser_.parse(withNumbersInRange(line)).get(root);
    object top;
    if (error != simdjson::SUCCESS || root.get(top) != simdjson::SUCCESS) return std::nullopt;
    LineMembers members;
    for (const auto& [key, value] : top) {
        if (isKey(key, "timestamp")) members.timestamp = valueOf<std::string_view>(value);
        if (isKey(key, "created_at")) members.createdAt = valueOf<std::string_view>(value);
        if (isKey(key, "message")) members.message = holderOf(value);
        readMember(key, value, members.top);
    }
    return members;
}

}  // namespace tidewatch
