#include "claude/quote_index.h"

#include <algorithm>
#include <bit>

namespace tidewatch {
namespace {

bool isHexDigit(char c) {
    return (c >= '0' && c <= '9') || ((c | 0x20) >= 'a' && (c | 0x20) <= 'f');
}

// Whether four hexadecimal digits stand there that are a character by themselves.
bool isCharacterNumber(const char* digits) {
    for (int i = 0; i < 4; ++i) {
        if (!isHexDigit(digits[i])) return false;
    }
    const bool isSurrogate = (digits[0] | 0x20) == 'd' && digits[1] >= '8';
    return !isSurrogate;
}

// The bytes after a backslash that is not itself escaped. `isEscaped`: whether the first byte of this block
// is escaped, and then that of the next one.
BlockMask escapedBytes(BlockMask backslashes, BlockMask& isEscaped) {
    // In a run of backslashes every second one is escaped. Subtracting carries through a run, so that the
    // parity of its start shows at its end.
    constexpr BlockMask oddBits = 0xAAAAAAAAAAAAAAAA;
    const auto starts = backslashes & ~isEscaped;
    const auto escapes = (((starts << 1) | oddBits) - starts) ^ oddBits;
    const auto escaped = escapes ^ (backslashes | isEscaped);
    isEscaped = (escapes & backslashes) >> 63;
    return escaped;
}

// Writes the positions of the set bits, counted from `base`, and returns how many. By eights, since a loop
// over the exact number would seldom end where the processor expects it: writes up to seven more.
[[gnu::always_inline]] inline std::size_t append(BlockMask mask, std::uint32_t base,
                                                 std::uint32_t* positions) {
    const auto count = static_cast<std::size_t>(std::popcount(mask));
    for (std::size_t i = 0; i < count; i += 8) {
        for (std::size_t j = 0; j < 8; ++j) {
            positions[i + j] = base + static_cast<std::uint32_t>(std::countr_zero(mask));
            mask &= mask - 1;
        }
    }
    return count;
}

}  // namespace

template <class Blocks>
[[gnu::always_inline]] inline bool QuoteIndex::addBlock(const char* block, std::size_t at, Search& search) {
    const auto [quotes, backslashes, hasControls] = Blocks::stringMasks(block);
    if (hasControls || search.count > maxQuotes) return false;
    // Without a branch on whether anything is escaped, which is hard to predict.
    const auto escaped = escapedBytes(backslashes, search.isEscaped);
    for (auto others = escaped & ~Blocks::escapeLetters(block); others != 0; others &= others - 1) {
        const auto* letter = block + std::countr_zero(others);
        if (*letter != 'u' || !isCharacterNumber(letter + 1)) return false;
        search.hasEscapedNumbers = true;
    }
    search.count +=
        append(quotes & ~escaped, static_cast<std::uint32_t>(at), positions_.data() + search.count);
    return true;
}

template <class Blocks>
[[gnu::always_inline]] inline bool QuoteIndex::findIn(std::string_view line) {
    Search search;
    std::size_t at = 0;
    for (; at + textBlockSize <= line.size(); at += textBlockSize) {
        if (!addBlock<Blocks>(line.data() + at, at, search)) return false;
    }
    // The rest in a block of its own, with blanks after it. An escape may read on behind the block.
    std::array<char, 2 * textBlockSize> rest;
    rest.fill(' ');
    std::ranges::copy(line.substr(at), rest.begin());
    if (!addBlock<Blocks>(rest.data(), at, search)) return false;
    const auto end = static_cast<std::uint32_t>(line.size());
    positions_[search.count] = end;
    positions_[search.count + 1] = end;
    hasEscapedNumbers_ = search.hasEscapedNumbers;
    return true;
}

#if defined(__x86_64__)
[[gnu::target("avx2,bmi,popcnt")]]
#endif
bool QuoteIndex::findWide(std::string_view line) {
    return findIn<WideBlocks>(line);
}

bool QuoteIndex::find(std::string_view line) {
    return WideBlocks::isSupported() ? findWide(line) : findIn<PlainBlocks>(line);
}

}  // namespace tidewatch
