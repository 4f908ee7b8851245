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

/// The text of a counter file, in memory of its own.
class CounterText final {
public:
    CounterText(std::unique_ptr<const char[]> bytes, std::size_t size)
        : bytes_(std::move(bytes)), size_(size) {}

    /// Valid as long as this object.
    [[nodiscard]] std::string_view view() const { return {bytes_.get(), size_}; }

private:
    std::unique_ptr<const char[]> bytes_;
    std::size_t size_;
};

/// The largest number that is read as a counter, either way from 0: more seconds than any life has. A record
/// holds fewer than 2^32 counters, so whatever a file holds, no sum over it can overflow; that is left to
/// sums that a running program makes.
constexpr std::int64_t maxCounter = (std::int64_t(1) << 31) - 1;

/// Reads the text of a counter file: any JSON whose top level is an object that holds, `depth` objects deep,
/// nothing but whole numbers. Nothing if the text is not JSON or has another shape.
///
/// - A number is taken if its value is an integer from -maxCounter to maxCounter, however it is
///   spelled: 60, 6e1 and 60.0 are one; 60.5, 2147483648, "60", true and null are of another shape, and so is
///   a file that holds one of them anywhere.
/// - Of equal keys in one object the last stands. Keys are compared as bytes, after their escapes are read.
/// - A byte order mark before the text is passed over.
[[nodiscard]] std::optional<CounterRecord> parseCounters(std::string text, std::size_t depth);

/// The exact text of a counter file: two blanks of indent a level, a blank on both sides of the colon, keys
/// in ascending order of their bytes, no end of line after the last brace. An object without members is an
/// open brace, an empty line and a closing brace. In keys the quote, the backslash, the forward slash and
/// what lies below U+0020 are escaped; everything else stands as UTF-8.
[[nodiscard]] CounterText serializeCounters(const CounterRecord& record);

}  // namespace tidewatch
