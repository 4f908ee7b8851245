#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "core/counter_record.h"
#include "platform/api/byte_sink.h"

namespace tidewatch {

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

/// Appends the exact text of a counter file to `sink`: two spaces of indentation per level, a space on both
/// sides of the colon, keys in bytewise order, no newline at the end. An empty object is an opening brace, an
/// empty line and a closing brace. In keys the quote, the backslash, the forward slash and characters below
/// U+0020 are escaped; everything else is written as UTF-8. Only one piece of the text is in memory at a
/// time.
void serializeCounters(const CounterRecord& record, platform::ByteSink& sink);
[[nodiscard]] std::string serializeCounters(const CounterRecord& record);

}  // namespace tidewatch
