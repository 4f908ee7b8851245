#include "tests/fuzz/strict_json.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace tidewatch::fuzz {
namespace {

constexpr int deepest = 900;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

void appendUtf8(std::string& out, std::uint32_t character) {
    const auto following = [&](int shift) {
        return static_cast<char>(0x80U | ((character >> static_cast<unsigned>(shift)) & 0x3FU));
    };
    if (character < 0x80) {
        out += static_cast<char>(character);
    } else if (character < 0x800) {
        out += static_cast<char>(0xC0U | (character >> 6U));
        out += following(0);
    } else if (character < 0x10000) {
        out += static_cast<char>(0xE0U | (character >> 12U));
        out += following(6);
        out += following(0);
    } else {
        out += static_cast<char>(0xF0U | (character >> 18U));
        out += following(12);
        out += following(6);
        out += following(0);
    }
}

// Recursive descent, one function per grammar rule. Each consumes its part of `rest_`.
class Parser final {
public:
    explicit Parser(std::string_view text) : rest_(text) {}

    std::optional<Json> parse() {
        auto value = takeValue(0);
        takeBlanks();
        return rest_.empty() ? std::move(value) : std::nullopt;
    }

private:
    [[nodiscard]] char next() const { return rest_.empty() ? '\0' : rest_.front(); }

    bool take(std::string_view wanted) {
        if (!rest_.starts_with(wanted)) return false;
        rest_.remove_prefix(wanted.size());
        return true;
    }

    void takeBlanks() {
        while (take(" ") || take("\t") || take("\n") || take("\r")) continue;
    }

    std::optional<Json> takeValue(int depth) {
        if (depth > deepest) return std::nullopt;
        takeBlanks();
        if (take("null")) return Json::null();
        if (take("true")) return Json::of(true);
        if (take("false")) return Json::of(false);
        if (take("{")) return takeMembers(depth);
        if (take("[")) return takeElements(depth);
        if (next() == '"') {
            auto text = takeString();
            return text ? std::optional(Json::of(std::move(*text))) : std::nullopt;
        }
        return takeNumber();
    }

    std::optional<Json> takeMembers(int depth) {
        Json::Members members;
        takeBlanks();
        if (take("}")) return Json::of(std::move(members));
        do {
            takeBlanks();
            auto name = takeString();
            takeBlanks();
            if (!name || !take(":")) return std::nullopt;
            auto value = takeValue(depth + 1);
            if (!value) return std::nullopt;
            members.emplace_back(std::move(*name), std::move(*value));
            takeBlanks();
        } while (take(","));
        return take("}") ? std::optional(Json::of(std::move(members))) : std::nullopt;
    }

    std::optional<Json> takeElements(int depth) {
        Json::Elements elements;
        takeBlanks();
        if (take("]")) return Json::of(std::move(elements));
        do {
            auto value = takeValue(depth + 1);
            if (!value) return std::nullopt;
            elements.push_back(std::move(*value));
            takeBlanks();
        } while (take(","));
        return take("]") ? std::optional(Json::of(std::move(elements))) : std::nullopt;
    }

    std::optional<std::string> takeString() {
        if (!take("\"")) return std::nullopt;
        std::string text;
        while (!take("\"")) {
            if (rest_.empty() || static_cast<unsigned char>(next()) < 0x20) return std::nullopt;
            if (take("\\")) {
                if (!takeEscape(text)) return std::nullopt;
            } else {
                text += next();
                rest_.remove_prefix(1);
            }
        }
        return text;
    }

    bool takeEscape(std::string& text) {
        constexpr std::string_view letters = "\"\\/bfnrt";
        constexpr std::string_view meanings = "\"\\/\b\f\n\r\t";
        if (take("u")) return takeUnicode(text);
        const auto known = letters.find(next());
        if (rest_.empty() || known == std::string_view::npos) return false;
        rest_.remove_prefix(1);
        text += meanings[known];
        return true;
    }

    bool takeUnicode(std::string& text) {
        const auto first = takeHex();
        if (!first || (*first >= 0xDC00 && *first <= 0xDFFF)) return false;
        if (*first < 0xD800 || *first > 0xDBFF) {
            appendUtf8(text, *first);
            return true;
        }
        if (!take("\\u")) return false;
        const auto second = takeHex();
        if (!second || *second < 0xDC00 || *second > 0xDFFF) return false;
        appendUtf8(text, 0x10000 + ((*first - 0xD800) << 10U) + (*second - 0xDC00));
        return true;
    }

    std::optional<std::uint32_t> takeHex() {
        std::uint32_t number = 0;
        for (int i = 0; i < 4; ++i) {
            constexpr std::string_view digits = "0123456789abcdef";
            const char c = next() >= 'A' && next() <= 'F' ? static_cast<char>(next() - 'A' + 'a') : next();
            const auto digit = digits.find(c);
            if (rest_.empty() || digit == std::string_view::npos) return std::nullopt;
            number = number * 16 + static_cast<std::uint32_t>(digit);
            rest_.remove_prefix(1);
        }
        return number;
    }

    std::optional<Json> takeNumber() {
        const auto begin = rest_;
        take("-");
        if (!take("0") && !takeDigits()) return std::nullopt;
        if (take(".") && !takeDigits()) return std::nullopt;
        if (take("e") || take("E")) {
            if (!take("+")) take("-");
            if (!takeDigits()) return std::nullopt;
        }
        return Json::of(Json::Number{std::string(begin.substr(0, begin.size() - rest_.size()))});
    }

    bool takeDigits() {
        const auto count =
            static_cast<std::size_t>(std::distance(rest_.begin(), std::ranges::find_if_not(rest_, isDigit)));
        rest_.remove_prefix(count);
        return count > 0;
    }

    std::string_view rest_;
};

}  // namespace

Json Json::of(bool value) {
    Json json;
    json.kind_ = Kind::boolean;
    json.boolean_ = value;
    return json;
}

Json Json::of(Number value) {
    Json json;
    json.kind_ = Kind::number;
    json.number_ = std::move(value);
    return json;
}

Json Json::of(std::string value) {
    Json json;
    json.kind_ = Kind::text;
    json.text_ = std::move(value);
    return json;
}

Json Json::of(Elements value) {
    Json json;
    json.kind_ = Kind::elements;
    json.elements_ = std::move(value);
    return json;
}

Json Json::of(Members value) {
    Json json;
    json.kind_ = Kind::members;
    json.members_ = std::move(value);
    return json;
}

std::vector<const Json*> Json::all(std::string_view name) const {
    std::vector<const Json*> found;
    const auto* members = as<Members>();
    if (!members) return found;
    for (const auto& [key, member] : *members) {
        if (key == name) found.push_back(&member);
    }
    return found;
}

std::optional<Json> parseStrictly(std::string_view text) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    if (!isUtf8(text)) return std::nullopt;
    return Parser(text).parse();
}

bool isUtf8(std::string_view text) {
    while (!text.empty()) {
        const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
        const std::size_t length = byte(0) < 0x80 ? 1 : byte(0) < 0xE0 ? 2 : byte(0) < 0xF0 ? 3 : 4;
        if (length > 1 && byte(0) < 0xC2) return false;
        if (byte(0) > 0xF4 || length > text.size()) return false;
        std::uint32_t character = length == 1 ? byte(0) : byte(0) & (0x7FU >> length);
        for (std::size_t i = 1; i < length; ++i) {
            if ((byte(i) & 0xC0U) != 0x80U) return false;
            character = (character << 6U) | (byte(i) & 0x3FU);
        }
        constexpr std::uint32_t leasts[] = {0, 0, 0x80, 0x800, 0x10000};
        if (character < leasts[length] || character > 0x10FFFF) return false;
        if (character >= 0xD800 && character <= 0xDFFF) return false;
        text.remove_prefix(length);
    }
    return true;
}

double realOf(const Json::Number& number) {
    return std::strtod(number.spelled.c_str(), nullptr);
}

}  // namespace tidewatch::fuzz
