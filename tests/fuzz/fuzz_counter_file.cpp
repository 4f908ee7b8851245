// Counter files, compared with a strict parser and an independent serializer. The first byte of an input is
// the depth of the counters, the rest is the file.

#include <array>
#include <cmath>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "core/counter_json.h"
#include "tests/fuzz/fuzz_target.h"
#include "tests/fuzz/strict_json.h"

namespace tidewatch::fuzz {
namespace {

// 68 years in seconds.
constexpr std::int64_t largest = 2'147'483'647;

/// A branch has children, a leaf seconds.
struct Node {
    std::map<std::string, Node> children;
    std::int64_t seconds = 0;
};

std::optional<std::int64_t> secondsOf(const Json::Number& number) {
    // Integers in range are exact as doubles, and others stay out of range.
    const double real = realOf(number);
    if (std::trunc(real) != real || std::abs(real) > static_cast<double>(largest)) return std::nullopt;
    return static_cast<std::int64_t>(real);
}

std::optional<Node> toNode(const Json& json, std::size_t depth) {
    Node node;
    if (depth == 0) {
        const auto* number = json.as<Json::Number>();
        const auto seconds = number ? secondsOf(*number) : std::nullopt;
        if (!seconds) return std::nullopt;
        node.seconds = *seconds;
        return node;
    }
    const auto* members = json.as<Json::Members>();
    if (!members) return std::nullopt;
    for (const auto& [key, value] : *members) {
        auto child = toNode(value, depth - 1);
        if (!child) return std::nullopt;
        node.children.insert_or_assign(key, std::move(*child));
    }
    return node;
}

std::string quoted(const std::string& key) {
    std::string text = "\"";
    for (const char c : key) {
        constexpr std::string_view escaped = "\"\\/\b\f\n\r\t";
        constexpr std::string_view letters = "\"\\/bfnrt";
        if (const auto known = escaped.find(c); known != std::string_view::npos) {
            text += '\\';
            text += letters[known];
        } else if (static_cast<unsigned char>(c) < 0x20) {
            constexpr std::string_view digits = "0123456789abcdef";
            text += "\\u00";
            text += digits[static_cast<unsigned char>(c) / 16];
            text += digits[static_cast<unsigned char>(c) % 16];
        } else {
            text += c;
        }
    }
    return text + '"';
}

std::string textOf(const Node& node, std::size_t depth, std::size_t level = 0) {
    if (depth == 0) return std::to_string(node.seconds);
    std::string text = "{";
    const char* separator = "\n";
    for (const auto& [key, child] : node.children) {
        text += separator + std::string(2 * (level + 1), ' ') + quoted(key) + " : ";
        text += textOf(child, depth - 1, level + 1);
        separator = ",\n";
    }
    if (node.children.empty()) text += '\n';
    return text + '\n' + std::string(2 * level, ' ') + '}';
}

void requireFound(const CounterRecord& record, const Node& node, std::vector<std::string_view>& path) {
    if (path.size() == record.depth()) {
        require(record.seconds(path) == Seconds(node.seconds), "each counter is found under its path");
        return;
    }
    for (const auto& [key, child] : node.children) {
        path.push_back(key);
        requireFound(record, child, path);
        path.pop_back();
    }
}

}  // namespace

void check(std::string_view input) {
    if (input.empty()) return;
    const std::size_t depth = 1 + static_cast<unsigned char>(input.front()) % 3U;
    input.remove_prefix(1);
    const auto json = parseStrictly(input);
    const auto expected = json ? toNode(*json, depth) : std::nullopt;
    const auto record = parseCounters(std::string(input), depth);
    require(record.has_value() == expected.has_value(),
            "what is no counter file is refused, and nothing else");
    if (!record) return;

    std::vector<std::string_view> path;
    requireFound(*record, *expected, path);
    const auto written = serializeCounters(*record);
    require(written == textOf(*expected, depth), "what is written has the exact form");
    const auto again = parseCounters(written, depth);
    require(again.has_value(), "what is written can be read");
    require(serializeCounters(*again) == written, "what is read back is written the same");
}

}  // namespace tidewatch::fuzz
