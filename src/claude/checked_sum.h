#pragma once

#include <cstdint>

namespace tidewatch {

/// Whether `sum` + `value` fits; if so, adds it.
[[nodiscard]] inline bool tryAdd(std::int64_t& sum, std::int64_t value) {
    std::int64_t result = 0;
    if (__builtin_add_overflow(sum, value, &result)) return false;
    sum = result;
    return true;
}

/// Aborts the process with a message.
[[noreturn]] void abortOnTokenOverflow();

/// Adds; an overflow aborts the process with a message.
inline void addChecked(std::int64_t& sum, std::int64_t value) {
    if (!tryAdd(sum, value)) abortOnTokenOverflow();
}

}  // namespace tidewatch
