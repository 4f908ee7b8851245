#pragma once

#include <simdjson.h>

#include <chrono>
#include <cstddef>
#include <optional>
#include <string_view>

#include "claude/token_counts.h"

namespace tidewatch {

/// What counts of one line of a log.
struct LogLine {
    std::chrono::sys_seconds date;
    TokenCounts tokens;
    std::string_view model;  ///< "unknown" if not logged; valid until the reader's next call
};

/// Parses log lines, one JSON object each. Keys are read as follows: of duplicates the last one counts; a
/// count that is not written as an integer ("5.0", "1e3"), or does not fit into 64 bits, is 0. JSON is read
/// strictly: lone surrogates, invalid UTF-8 and nesting deeper than 1,000 levels are errors. Not thread-safe.
class LogLineReader final {
public:
    /// The bytes after a line that must be readable; their values do not matter.
    static constexpr std::size_t padding = simdjson::SIMDJSON_PADDING;

    /// Returns nullopt for a line that does not count: not a JSON object, without a date or usage, or with
    /// neither input nor output tokens.
    [[nodiscard]] std::optional<LogLine> read(std::string_view line);

    /// Whether the last line was a JSON object, and therefore valid UTF-8.
    [[nodiscard]] bool wasJson() const { return wasJson_; }

private:
    simdjson::dom::parser parser_;
    bool wasJson_ = false;
};

}  // namespace tidewatch
