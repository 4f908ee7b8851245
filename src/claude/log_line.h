#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <optional>
#include <string_view>

#include "claude/quick_line.h"
#include "claude/strict_line.h"
#include "claude/token_counts.h"

namespace tidewatch {

/// What counts of one line of a log.
struct LogLine {
    std::chrono::sys_seconds date;
    TokenCounts tokens;
    /// "unknown" if not logged; valid until the reader's next call and as long as the line.
    std::string_view model;
};

/// Parses log lines, one JSON object each. Keys are read as follows: of duplicates the last one counts; a
/// count that is not written as an integer ("5.0", "1e3"), or does not fit into 64 bits, is 0. JSON is read
/// strictly: lone surrogates and nesting deeper than 1,000 levels are errors. Lines must be UTF-8; of others
/// it is not defined whether they count. Not thread-safe.
class LogLineReader final {
public:
    /// The bytes after a line that must be readable; their values do not matter.
    static constexpr std::size_t padding = std::max(QuickLineReader::padding, StrictLineReader::padding);

    /// Returns nullopt for a line that does not count: not a JSON object, without a date or usage, or with
    /// neither input nor output tokens.
    [[nodiscard]] std::optional<LogLine> read(std::string_view line);

private:
    QuickLineReader quick_;
    StrictLineReader strict_;
};

}  // namespace tidewatch
