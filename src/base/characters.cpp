#include "base/characters.h"

#include <utf8proc.h>

namespace tidewatch {
namespace {

constexpr std::size_t maxCodePoints = 32;

/// The first code point of a text; -1 for an invalid byte.
struct CodePoint {
    utf8proc_int32_t value = -1;
    std::size_t size = 1;
};

// `text` must not be empty.
CodePoint firstCodePoint(std::string_view text) {
    CodePoint point;
    const auto size = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                                       static_cast<utf8proc_ssize_t>(text.size()), &point.value);
    if (size > 0) point.size = static_cast<std::size_t>(size);
    return point;
}

// The size in bytes of the first character of `text`, which must not be empty.
std::size_t sizeOfFirstCharacter(std::string_view text) {
    auto last = firstCodePoint(text);
    std::size_t size = last.size;
    utf8proc_int32_t state = 0;
    for (std::size_t points = 1; size < text.size() && last.value >= 0 && points < maxCodePoints; ++points) {
        const auto next = firstCodePoint(text.substr(size));
        if (next.value < 0 || utf8proc_grapheme_break_stateful(last.value, next.value, &state)) break;
        size += next.size;
        last = next;
    }
    return size;
}

bool isSpace(utf8proc_int32_t codePoint) {
    switch (utf8proc_category(codePoint)) {
        case UTF8PROC_CATEGORY_CC:
        case UTF8PROC_CATEGORY_ZS:
        case UTF8PROC_CATEGORY_ZL:
        case UTF8PROC_CATEGORY_ZP:
            return true;
        default:
            return false;
    }
}

}  // namespace

std::string_view firstCharacters(std::size_t count, std::string_view text) {
    std::size_t size = 0;
    for (; count > 0 && size < text.size(); --count) size += sizeOfFirstCharacter(text.substr(size));
    return text.substr(0, size);
}

std::string_view charactersWithin(std::size_t bytes, std::string_view text) {
    std::size_t size = 0;
    while (size < text.size()) {
        const auto next = sizeOfFirstCharacter(text.substr(size));
        if (size + next > bytes) break;
        size += next;
    }
    return text.substr(0, size);
}

std::string onOneLine(std::string_view text) {
    std::string line;
    line.reserve(text.size());
    bool afterSpace = false;
    while (!text.empty()) {
        const auto point = firstCodePoint(text);
        const bool space = point.value >= 0 && isSpace(point.value);
        if (!space) {
            if (afterSpace && !line.empty()) line += ' ';
            line += text.substr(0, point.size);
        }
        afterSpace = space;
        text.remove_prefix(point.size);
    }
    return line;
}

}  // namespace tidewatch
