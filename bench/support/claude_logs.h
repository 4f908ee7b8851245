#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "base/instant.h"

namespace tidewatch::bench {

/// The amount of generated logs. The same values always give the same logs.
struct ClaudeLogsSize {
    int files = 1000;
    std::size_t bytes = 1'000'000'000;  ///< of all files together, about
    Instant until;                      ///< the last line; the first is four months before
    std::uint32_t seed = 20260311;
};

/// Writes believable logs below ".claude/projects" in `home`: lines of 1.5 KB in the median, 8 KB at the
/// ninetieth percentile and 70 KB at most, six in ten with usage, others with tool results that look like it.
/// Each file was modified when its last line was written.
void writeClaudeLogs(const ClaudeLogsSize& size, const std::string& home);

}  // namespace tidewatch::bench
