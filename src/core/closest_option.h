#pragma once

#include <span>

namespace tidewatch {

/// One row of a table of choices: the enumerator, its stored value, and its label in the menu.
template <class Option, class Raw>
struct OptionRow {
    Option option;
    Raw raw;
    const char* label;
};

/// The option whose stored value is closest to `value`; on a tie, the earlier row. `distance(raw, value)`
/// must be defined for every `value`.
template <class Option, class Raw, class Distance>
[[nodiscard]] Option closestOption(std::span<const OptionRow<Option, Raw>> rows, Raw value,
                                   Distance distance) {
    const auto* best = &rows.front();
    for (const auto& row : rows.subspan(1)) {
        if (distance(row.raw, value) < distance(best->raw, value)) best = &row;
    }
    return best->option;
}

}  // namespace tidewatch
