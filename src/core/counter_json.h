#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "core/counter_record.h"

namespace tidewatch {

/// The text of a counter file, in its own buffer.
class CounterText final {
public:
    CounterText(std::unique_ptr<const char[]> bytes, std::size_t size)
        : bytes_(std::move(bytes)), size_(size) {}

    /// Valid for this object's lifetime.
    [[nodiscard]] std::string_view view() const { return {bytes_.get(), size_}; }

private:
    std::unique_ptr<const char[]> bytes_;
    std::size_t size_;
};

/// The maximum absolute value accepted as a counter: 68 years in seconds. A record holds fewer than 2^32
/// counters, so no sum over the content of a file can overflow.
constexpr std::int64_t maxCounter = (std::int64_t(1) << 31) - 1;

/// Parses the text of a counter file: any JSON object whose values, `depth` objects deep, are integers.
/// Returns nullopt if the text is not JSON or has another structure.
///
/// - A number is accepted if its value is an integer from -maxCounter to maxCounter, in any notation: 60, 6e1
/// and 60.0 are equal. 60.5, 2147483648, "60", true and null make the whole file invalid.
/// - Of duplicate keys in one object the last wins. Keys are compared bytewise, after unescaping.
/// - A leading byte order mark is ignored.
[[nodiscard]] std::optional<CounterRecord> parseCounters(std::string text, std::size_t depth);

/// The exact text of a counter file: two spaces of indentation per level, a space on both sides of the colon,
/// keys in bytewise order, no newline at the end. An empty object is an opening brace, an empty line and a
/// closing brace. In keys the quote, the backslash, the forward slash and characters below U+0020 are
/// escaped; everything else is written as UTF-8.
[[nodiscard]] CounterText serializeCounters(const CounterRecord& record);

}  // namespace tidewatch
