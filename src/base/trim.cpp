#include "base/trim.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tidewatch {
namespace {

// UTF-8 is self-synchronising, so bytes can be compared directly.
constexpr std::array<std::string_view, 18> blanks{
    "\t",           " ",
    "\xC2\xA0",      // U+00A0
    "\xE1\x9A\x80",  // U+1680
    "\xE2\x80\x80", "\xE2\x80\x81",
    "\xE2\x80\x82", "\xE2\x80\x83",
    "\xE2\x80\x84", "\xE2\x80\x85",
    "\xE2\x80\x86", "\xE2\x80\x87",
    "\xE2\x80\x88", "\xE2\x80\x89",
    "\xE2\x80\x8A",  // U+2000 to U+200A
    "\xE2\x80\xAF",  // U+202F
    "\xE2\x81\x9F",  // U+205F
    "\xE3\x80\x80",  // U+3000
};
constexpr std::array<std::string_view, 7> lineEnds{
    "\n",           "\v", "\f", "\r",
    "\xC2\x85",      // U+0085
    "\xE2\x80\xA8",  // U+2028
    "\xE2\x80\xA9",  // U+2029
};

enum class LineEnds { keep, trim };

// The size of the white space for which `isAtEdge` is true, 0 if there is none.
template <class Test>
std::size_t spaceSize(LineEnds ends, Test isAtEdge) {
    if (const auto* blank = std::ranges::find_if(blanks, isAtEdge); blank != blanks.end()) {
        return blank->size();
    }
    if (ends == LineEnds::keep) return 0;
    const auto* end = std::ranges::find_if(lineEnds, isAtEdge);
    return end == lineEnds.end() ? 0 : end->size();
}

std::string_view trim(std::string_view text, LineEnds ends) {
    const auto atStart = [&](std::string_view space) { return text.starts_with(space); };
    const auto atEnd = [&](std::string_view space) { return text.ends_with(space); };
    while (const auto size = spaceSize(ends, atStart)) text.remove_prefix(size);
    while (const auto size = spaceSize(ends, atEnd)) text.remove_suffix(size);
    return text;
}

}  // namespace

std::string_view trimmed(std::string_view text) {
    return trim(text, LineEnds::trim);
}

std::string_view trimmedOfBlanks(std::string_view text) {
    return trim(text, LineEnds::keep);
}

}  // namespace tidewatch
