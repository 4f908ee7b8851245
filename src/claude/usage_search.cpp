#include "claude/usage_search.h"

#include "claude/byte_vector.h"

namespace tidewatch {
namespace {

constexpr std::string_view usageKey = "\"usage\"";
// The letters of the key, escaped, are \u0061, \u0065, \u0067, \u0073 and \u0075.
constexpr std::string_view escape = "\\u00";
constexpr std::size_t blockSize = 4 * byteVectorSize;

bool beginsWithUsage(std::string_view text) {
    if (text.starts_with(usageKey)) return true;
    return text.starts_with(escape) && text.size() > escape.size() &&
           (text[escape.size()] == '6' || text[escape.size()] == '7');
}

// Of each byte whether a quote or a backslash stands there, and a u after it. Reads one byte past the vector.
ByteVector possibleIn(const char* text) {
    const auto first = loadBytes(text);
    return ((first == '"') | (first == '\\')) & (loadBytes(text + 1) == 'u');
}

// Of these, whether "us begins there, or \u0 and a letter of the key. Reads four bytes past the vector.
ByteVector likelyIn(const char* text) {
    const auto first = loadBytes(text);
    const auto third = loadBytes(text + 2);
    const auto key = (first == '"') & (third == 's');
    const auto escaped = (first == '\\') & (third == '0') & ((loadBytes(text + 4) | 1) == '7');
    return (key | escaped) & (loadBytes(text + 1) == 'u');
}

template <class Search>
bool isAnyInBlock(const char* block, Search search) {
    return isAnySet(search(block) | search(block + byteVectorSize) | search(block + 2 * byteVectorSize) |
                    search(block + 3 * byteVectorSize));
}

}  // namespace

std::size_t findUsage(std::string_view lines, std::size_t from) {
    auto i = from;
    for (; i + blockSize + usageKey.size() <= lines.size(); i += blockSize) {
        const auto* begin = lines.data() + i;
        if (!isAnyInBlock(begin, possibleIn) || !isAnyInBlock(begin, likelyIn)) continue;
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
