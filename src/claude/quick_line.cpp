#include "claude/quick_line.h"

#include <algorithm>
#include <cstring>

#include "claude/json_numbers.h"

namespace tidewatch {
namespace {

constexpr int maxDepth = 64;

bool hasEscapes(std::string_view text) {
    return text.find('\\') != std::string_view::npos;
}

// Whether a value is an integer without a sign that fits into 64 bits by its length alone.
bool isShortInteger(std::string_view text) {
    constexpr std::size_t maxLength = 18;
    return text.size() <= maxLength && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

std::int64_t shortInteger(std::string_view text) {
    std::int64_t value = 0;
    for (const char c : text) value = value * 10 + (c - '0');
    return value;
}

// Where in a line a walk is. Passed by value, so that it stays in registers.
struct Place {
    const char* at;              // null if the walk is not certain about something, and has ended
    const std::uint32_t* quote;  // the position of the next quote: everything before it has been gone through

    [[nodiscard]] Place after(std::size_t length) const { return {at + length, quote}; }
};

constexpr Place nowhere{nullptr, nullptr};

// Goes through a line once. The functions read what begins at a place, and return that after it.
class LineWalk final {
public:
    // Beyond the line, which must not be empty, padding must be readable.
    LineWalk(std::string_view line, const QuoteIndex& quotes)
        : begin_(line.data()), end_(begin_ + line.size()), keysMayBeEscaped_(quotes.hasEscapedNumbers()) {}

    // Whether the walk is certain about the line.
    [[nodiscard]] bool readLine(const QuoteIndex& quotes, LineMembers& members) const {
        const Place begin{begin_, quotes.positions()};
        if (*begin.at != '{') return false;
        const auto end = readObject(
            begin, [&](Place value, std::string_view key) { return readTop(value, key, members); });
        return end.at == end_;
    }

private:
    Place readTop(Place value, std::string_view key, LineMembers& members) const {
        if (isKey(key, "timestamp")) return readText(value, members.timestamp);
        if (isKey(key, "created_at")) return readText(value, members.createdAt);
        if (!isKey(key, "message")) return readHeld(value, key, members.top);
        members.message.reset();
        if (*value.at != '{') return skipValue(value, maxDepth);
        auto& message = members.message.emplace();
        return readObject(value,
                          [&](Place held, std::string_view inner) { return readHeld(held, inner, message); });
    }

    Place readHeld(Place value, std::string_view key, LineMembers::Holder& holder) const {
        if (isKey(key, "model")) return readText(value, holder.model);
        if (!isKey(key, "usage")) return skipValue(value, maxDepth);
        holder.usage.reset();
        if (*value.at != '{') return skipValue(value, maxDepth);
        auto& usage = holder.usage.emplace();
        return readObject(value, [&](Place count, std::string_view inner) {
            auto* tokens = countOf(inner, usage);
            return tokens ? readCount(count, *tokens) : skipValue(count, maxDepth);
        });
    }

    Place readText(Place value, std::optional<std::string_view>& text) const {
        text.reset();
        if (*value.at != '"') return skipValue(value, maxDepth);
        const auto end = readString(value, text.emplace());
        return hasEscapes(*text) ? nowhere : end;
    }

    Place readCount(Place value, std::int64_t& count) const {
        const auto end = skipValue(value, maxDepth);
        if (!end.at) return end;
        const std::string_view text(value.at, end.at);
        count = isShortInteger(text) ? shortInteger(text) : integerOf(text).value_or(0);
        return end;
    }

    // An object whose keys matter. `readMember` gets the place of each value, with its key.
    template <class ReadMember>
    Place readObject(Place begin, ReadMember&& readMember) const {
        return readMembers(begin, '}', [&](Place member) {
            std::string_view key;
            const auto value = readKey(member, key);
            if (!value.at || (keysMayBeEscaped_ && hasEscapes(key))) return nowhere;
            return readMember(value, key);
        });
    }

    Place skipValue(Place value, int depth) const {
        if (*value.at != '"') return skipOther(value, depth);
        std::string_view text;
        return readString(value, text);
    }

    // What is no string.
    Place skipOther(Place value, int depth) const {
        switch (*value.at) {
            case '{':
                if (depth == 0) return nowhere;
                return readMembers(value, '}', [&](Place member) {
                    std::string_view key;
                    const auto held = readKey(member, key);
                    return held.at ? skipValue(held, depth - 1) : nowhere;
                });
            case '[':
                if (depth == 0) return nowhere;
                return readMembers(value, ']', [&](Place member) { return skipValue(member, depth - 1); });
            case 't':
                return skipWord(value, "true");
            case 'f':
                return skipWord(value, "false");
            case 'n':
                return skipWord(value, "null");
            default:
                return skipNumber(value);
        }
    }

    // What stands between brackets, the first of which is at the place.
    template <class ReadMember>
    static Place readMembers(Place begin, char closing, ReadMember&& readMember) {
        auto place = begin.after(1);
        if (*place.at == closing) return place.after(1);
        while (true) {
            place = readMember(place);
            if (!place.at) return nowhere;
            const char next = *place.at++;
            if (next == closing) return place;
            if (next != ',') return nowhere;
        }
    }

    Place readKey(Place begin, std::string_view& key) const {
        if (*begin.at != '"') return nowhere;
        const auto end = readString(begin, key);
        return end.at && *end.at == ':' ? end.after(1) : nowhere;
    }

    // At a quote, which is therefore the next one of the index.
    Place readString(Place begin, std::string_view& text) const {
        const auto* last = begin_ + begin.quote[1];
        if (last >= end_) return nowhere;
        text = {begin.at + 1, last};
        return {last + 1, begin.quote + 2};
    }

    static Place skipWord(Place begin, std::string_view word) {
        return std::memcmp(begin.at, word.data(), word.size()) == 0 ? begin.after(word.size()) : nowhere;
    }

    Place skipNumber(Place begin) const {
        const auto* end = begin.at;
        bool isPlain = true;  // without sign, fraction and exponent
        for (; end < end_ && *end != ',' && *end != '}' && *end != ']'; ++end) {
            isPlain = isPlain && *end >= '0' && *end <= '9';
        }
        const std::string_view text(begin.at, end);
        const bool isShort = isPlain && !text.empty() && (text[0] != '0' || text.size() == 1);
        return isShort || isJsonNumber(text) ? begin.after(text.size()) : nowhere;
    }

    const char* const begin_;
    const char* const end_;
    const bool keysMayBeEscaped_;
};

}  // namespace

std::optional<LineMembers> QuickLineReader::read(std::string_view line) {
    if (line.empty() || !quotes_.find(line)) return std::nullopt;
    std::optional<LineMembers> members(std::in_place);
    if (!LineWalk(line, quotes_).readLine(quotes_, *members)) members.reset();
    return members;
}

}  // namespace tidewatch
