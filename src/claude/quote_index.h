#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "claude/text_blocks.h"

namespace tidewatch {

/// Where the quotes of a line of JSON stand that begin and end its strings.
class QuoteIndex final {
public:
    /// The bytes after a line that must be readable; their values do not matter.
    static constexpr std::size_t padding = 64;

    /// Finds the quotes that are not escaped. Returns false, and has found nothing, unless the line has no
    /// control characters, each backslash begins an escape that JSON knows, and no escape is of a surrogate;
    /// also for a line with very many strings. Whether the quotes are where JSON has them is not checked.
    [[nodiscard]] bool find(std::string_view line);

    /// The positions in ascending order, and after them that of the end of the line, twice.
    [[nodiscard]] const std::uint32_t* positions() const { return positions_.data(); }

    /// Whether a character is escaped by its number.
    [[nodiscard]] bool hasEscapedNumbers() const { return hasEscapedNumbers_; }

private:
    static constexpr std::size_t maxQuotes = 4096;

    struct Search {
        std::size_t count = 0;
        BlockMask isEscaped = 0;  // 1 if the first byte of the next block is escaped
        bool hasEscapedNumbers = false;
    };

    template <class Blocks>
    bool addBlock(const char* block, std::size_t at, Search& search);
    template <class Blocks>
    bool findIn(std::string_view line);
    bool findWide(std::string_view line);

    // Room for what a block may add beyond the maximum.
    std::array<std::uint32_t, maxQuotes + 80> positions_;
    bool hasEscapedNumbers_ = false;
};

}  // namespace tidewatch
