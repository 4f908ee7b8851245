#pragma once

#include <cstdint>

#include "claude/checked_sum.h"

namespace tidewatch {

/// Tokens by kind, as logged; a hand-made log may contain negative counts.
struct TokenCounts {
    std::int64_t input = 0;
    std::int64_t output = 0;
    std::int64_t cacheWrite = 0;
    std::int64_t cacheRead = 0;
    bool operator==(const TokenCounts&) const = default;

    /// An overflow aborts the process.
    void addChecked(const TokenCounts& other) {
        tidewatch::addChecked(input, other.input);
        tidewatch::addChecked(output, other.output);
        tidewatch::addChecked(cacheWrite, other.cacheWrite);
        tidewatch::addChecked(cacheRead, other.cacheRead);
    }
};

}  // namespace tidewatch
