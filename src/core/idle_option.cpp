#include "core/idle_option.h"

#include <algorithm>
#include <array>

#include "core/closest_option.h"

namespace tidewatch {
namespace {

using Row = OptionRow<IdleOption, std::int64_t>;

constexpr std::array rows{
    Row{IdleOption::one, 60, "1 min"},       Row{IdleOption::three, 180, "3 min"},
    Row{IdleOption::five, 300, "5 min"},     Row{IdleOption::ten, 600, "10 min"},
    Row{IdleOption::fifteen, 900, "15 min"}, Row{IdleOption::thirty, 1800, "30 min"},
};

constexpr auto options = [] {
    std::array<IdleOption, rows.size()> result{};
    std::ranges::transform(rows, result.begin(), &Row::option);
    return result;
}();

const Row& rowOf(IdleOption option) {
    return rows[static_cast<std::size_t>(option)];
}

// Unsigned, because the difference of two signed integers need not fit into one.
std::uint64_t distance(std::int64_t raw, std::int64_t value) {
    const auto a = static_cast<std::uint64_t>(raw);
    const auto b = static_cast<std::uint64_t>(value);
    return raw > value ? a - b : b - a;
}

}  // namespace

std::span<const IdleOption> allIdleOptions() {
    return options;
}

std::int64_t rawValue(IdleOption option) {
    return rowOf(option).raw;
}

std::string_view label(IdleOption option) {
    return rowOf(option).label;
}

std::optional<IdleOption> idleOption(std::int64_t raw) {
    const auto* row = std::ranges::find(rows, raw, &Row::raw);
    return row == rows.end() ? std::nullopt : std::optional(row->option);
}

IdleOption closestIdleOption(std::int64_t raw) {
    return closestOption<IdleOption, std::int64_t>(rows, raw, distance);
}

}  // namespace tidewatch
