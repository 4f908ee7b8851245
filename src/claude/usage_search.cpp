#include "claude/usage_search.h"

#include <algorithm>
#include <bit>

#include "claude/text_blocks.h"

namespace tidewatch {
namespace {

constexpr std::string_view usageKey = "\"usage\"";
// The letters of the key, escaped, are \u0061, \u0065, \u0067, \u0073 and \u0075.
constexpr std::string_view escape = "\\u00";
// The last escape in a key that has one begins at most so far before what is searched for: \u0075sage.
constexpr std::size_t escapeBeforeEnd = 8;

// What is searched for is the end of the key, because a text in a string has a backslash there: a g or the
// last digit but one of an escaped e, an e or the last digit, and the quote.
constexpr std::size_t endLength = 3;
constexpr std::size_t beforeEnd = usageKey.size() - endLength;

bool isUsageEnd(std::string_view end) {
    return end.size() >= endLength && (end[0] == 'g' || end[0] == '6' || end[0] == '7') &&
           (end[1] == 'e' || end[1] == '5') && end[2] == '"';
}

// The position of a key that ends at `end`, or one in it; npos if there is none after `from`.
std::size_t keyAt(std::string_view lines, std::size_t from, std::size_t end) {
    if (!isUsageEnd(lines.substr(end))) return std::string_view::npos;
    const auto before = lines.substr(from, end - from);
    if (before.ends_with(usageKey.substr(0, beforeEnd)) && lines[end] == 'g' && lines[end + 1] == 'e') {
        return end - beforeEnd;
    }
    const auto last = before.substr(before.size() - std::min(before.size(), escapeBeforeEnd));
    return last.find(escape) != std::string_view::npos ? end : std::string_view::npos;
}

template <class Blocks>
[[gnu::always_inline]] inline std::size_t findIn(std::string_view lines, std::size_t from) {
    auto i = from;
    for (; i + textBlockSize + endLength <= lines.size(); i += textBlockSize) {
        if (!Blocks::mayEndUsage(lines.data() + i)) continue;
        for (auto mask = Blocks::usageEnds(lines.data() + i); mask != 0; mask &= mask - 1) {
            const auto end = i + static_cast<std::size_t>(std::countr_zero(mask));
            if (const auto key = keyAt(lines, from, end); key != std::string_view::npos) return key;
        }
    }
    for (; i < lines.size(); ++i) {
        if (const auto key = keyAt(lines, from, i); key != std::string_view::npos) return key;
    }
    return std::string_view::npos;
}

#if defined(__x86_64__)
[[gnu::target("avx2")]]
#endif
std::size_t
findWide(std::string_view lines, std::size_t from) {
    return findIn<WideBlocks>(lines, from);
}

}  // namespace

std::size_t findUsage(std::string_view lines, std::size_t from) {
    return WideBlocks::isSupported() ? findWide(lines, from) : findIn<PlainBlocks>(lines, from);
}

}  // namespace tidewatch
