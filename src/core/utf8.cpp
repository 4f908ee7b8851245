#include "core/utf8.h"

#include <simdjson.h>

#include <algorithm>
#include <array>
#include <cstddef>

namespace tidewatch {
namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD";

// Lead bytes, the number of continuation bytes, and the range of the first one, which excludes overlong
// forms, surrogates and code points beyond U+10FFFF.
struct LeadRange {
    unsigned char first;
    unsigned char last;
    std::size_t following;
    unsigned char nextMin;
    unsigned char nextMax;
};

constexpr std::array leadRanges{
    LeadRange{0x00, 0x7F, 0, 0x00, 0x00}, LeadRange{0xC2, 0xDF, 1, 0x80, 0xBF},
    LeadRange{0xE0, 0xE0, 2, 0xA0, 0xBF}, LeadRange{0xE1, 0xEC, 2, 0x80, 0xBF},
    LeadRange{0xED, 0xED, 2, 0x80, 0x9F}, LeadRange{0xEE, 0xEF, 2, 0x80, 0xBF},
    LeadRange{0xF0, 0xF0, 3, 0x90, 0xBF}, LeadRange{0xF1, 0xF3, 3, 0x80, 0xBF},
    LeadRange{0xF4, 0xF4, 3, 0x80, 0x8F},
};

struct Piece {
    std::size_t length;
    bool whole;
};

// The code point, or a part of one, at the start of `text`, which must not be empty.
Piece firstPiece(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const auto* lead = std::ranges::find_if(
        leadRanges, [&](const auto& range) { return byte(0) >= range.first && byte(0) <= range.last; });
    if (lead == leadRanges.end()) return {1, false};
    std::size_t length = 1;
    while (length <= lead->following && length < text.size()) {
        const unsigned char min = length == 1 ? lead->nextMin : 0x80;
        const unsigned char max = length == 1 ? lead->nextMax : 0xBF;
        if (byte(length) < min || byte(length) > max) break;
        ++length;
    }
    return {length, length == lead->following + 1};
}

}  // namespace

std::string repairedUtf8(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const auto piece = firstPiece(text);
        result += piece.whole ? text.substr(0, piece.length) : replacement;
        text.remove_prefix(piece.length);
    }
    return result;
}

ValidUtf8::ValidUtf8(std::string_view text) : text_(text) {
    if (!simdjson::validate_utf8(text)) {
        repaired_ = repairedUtf8(text);
        text_ = repaired_;
    }
}

}  // namespace tidewatch
