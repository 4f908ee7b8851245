#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "claude/line_members.h"
#include "claude/quote_index.h"

namespace tidewatch {

/// Reads log lines as they are usually written, without building a tree: all of a line is checked, but of its
/// strings only where they end.
class QuickLineReader final {
public:
    static constexpr std::size_t padding = QuoteIndex::padding;

    /// The members of a line that is certainly a JSON object, if it is UTF-8; they point into it. Returns
    /// nullopt if that cannot be told here: among others for white space between the tokens, escapes in what
    /// is read, deep nesting, and everything that is not JSON.
    [[nodiscard]] std::optional<LineMembers> read(std::string_view line);

private:
    QuoteIndex quotes_;
};

}  // namespace tidewatch
