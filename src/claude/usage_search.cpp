#include "claude/usage_search.h"

#include <cstdint>
#include <cstring>

namespace tidewatch {
namespace {

constexpr std::string_view usageKey = "\"usage\"";
// The letters of the key, escaped, are \u0061, \u0065, \u0067, \u0073 and \u0075.
constexpr std::string_view escape = "\\u00";

bool beginsWithUsage(std::string_view text) {
    if (text.starts_with(usageKey)) return true;
    return text.starts_with(escape) && text.size() > escape.size() &&
           (text[escape.size()] == '6' || text[escape.size()] == '7');
}

// As many bytes as fit into a vector register of any processor.
constexpr std::size_t vectorSize = 16;
using Vector [[gnu::vector_size(vectorSize)]] = signed char;
using Words [[gnu::vector_size(vectorSize)]] = std::uint64_t;

constexpr std::size_t vectorsInBlock = 4;
constexpr std::size_t blockSize = vectorsInBlock * vectorSize;

Vector load(const char* text) {
    Vector bytes;
    std::memcpy(&bytes, text, vectorSize);
    return bytes;
}

// Of each byte whether "us begins there, or \u0 and a letter of the key, as -1 or 0. Reads some bytes past
// the vector.
Vector candidatesIn(const char* text) {
    const auto first = load(text);
    const auto third = load(text + 2);
    const auto key = (first == '"') & (third == 's');
    const auto escaped = (first == '\\') & (third == '0') & ((load(text + 4) | 1) == '7');
    return (key | escaped) & (load(text + 1) == 'u');
}

bool mayBeginIn(const char* block) {
    const auto any = candidatesIn(block) | candidatesIn(block + vectorSize) |
                     candidatesIn(block + 2 * vectorSize) | candidatesIn(block + 3 * vectorSize);
    const auto words = reinterpret_cast<Words>(any);
    return (words[0] | words[1]) != 0;
}

}  // namespace

std::size_t findUsage(std::string_view lines, std::size_t from) {
    auto i = from;
    for (; i + blockSize + usageKey.size() <= lines.size(); i += blockSize) {
        if (!mayBeginIn(lines.data() + i)) continue;
        for (auto at = lines.find('u', i + 1); at <= i + blockSize; at = lines.find('u', at + 1)) {
            if (beginsWithUsage(lines.substr(at - 1))) return at - 1;
        }
    }
    for (; i < lines.size(); ++i) {
        if (beginsWithUsage(lines.substr(i))) return i;
    }
    return std::string_view::npos;
}

}  // namespace tidewatch
