#pragma once

#include <map>
#include <string>

#include "claude/claude_snapshot.h"
#include "platform/api/clock.h"
#include "platform/api/file_system.h"

namespace tidewatch::test {

/// A past month as the slow scanner counts it, by "2026-03".
struct SlowMonth {
    std::int64_t activeWindows = 0;
    std::int64_t conversations = 0;
    std::int64_t outputTokensK = 0;
    bool operator==(const SlowMonth&) const = default;
};

struct SlowScan {
    ClaudeSnapshot snapshot;
    std::map<std::string, SlowMonth> pastMonths;
};

/// Scans the logs from nothing, step by step as the rules tell it: each file whole, each line by an
/// independent parser, windows and months as strings. Shares no code with what it checks but plain records.
[[nodiscard]] SlowScan scanSlowly(const platform::FileSystem& files, const platform::Clock& clock);

/// Adds a failure to the current test for each difference; costs may differ by the rounding of their sum.
void expectSame(const ClaudeSnapshot& fast, const ClaudeSnapshot& slow);

}  // namespace tidewatch::test
