#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace tidewatch {

// Tables of an enumeration: one row per enumerator, in the order of the enumeration, with the enumerator as
// `value` and its stored value as `raw`.

/// The table, checked: does not compile unless each row stands in the place of its enumerator.
template <class Row, std::size_t N>
[[nodiscard]] consteval std::array<Row, N> enumTable(const std::array<Row, N>& rows) {
    for (std::size_t place = 0; place < N; ++place) {
        if (static_cast<std::size_t>(rows[place].value) != place) throw "a row in another's place";
    }
    return rows;
}

template <class Row, std::size_t N>
[[nodiscard]] constexpr auto valuesOf(const std::array<Row, N>& rows) {
    std::array<decltype(Row::value), N> values{};
    std::ranges::transform(rows, values.begin(), &Row::value);
    return values;
}

template <class Row, std::size_t N>
[[nodiscard]] constexpr const Row& rowOf(const std::array<Row, N>& rows, decltype(Row::value) value) {
    return rows[static_cast<std::size_t>(value)];
}

/// The enumerator with exactly this stored value, or nullopt.
template <class Row, std::size_t N>
[[nodiscard]] constexpr auto valueFromRaw(const std::array<Row, N>& rows, std::string_view raw)
    -> std::optional<decltype(Row::value)> {
    const auto row = std::ranges::find(rows, raw, &Row::raw);
    return row == rows.end() ? std::nullopt : std::optional(row->value);
}

}  // namespace tidewatch
