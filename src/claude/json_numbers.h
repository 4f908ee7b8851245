#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tidewatch {

/// Whether all of `text` is a number by the grammar of JSON, whatever its size.
[[nodiscard]] bool isJsonNumber(std::string_view text);

/// The value of a number that is written as an integer and fits into 64 bits.
[[nodiscard]] std::optional<std::int64_t> integerOf(std::string_view number);

}  // namespace tidewatch
