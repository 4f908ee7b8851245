#pragma once

#include <simdjson.h>

#include <cstddef>
#include <optional>
#include <string_view>

#include "claude/line_members.h"

namespace tidewatch {

/// Reads any log line. Not thread-safe.
class StrictLineReader final {
public:
    /// The bytes after a line that must be readable; their values do not matter.
    static constexpr std::size_t padding = simdjson::SIMDJSON_PADDING;

    /// The members of a line, valid until the next call. Returns nullopt if it is not a JSON object.
    [[nodiscard]] std::optional<LineMembers> read(std::string_view line);

private:
    simdjson::dom::parser parser_;
};

}  // namespace tidewatch
