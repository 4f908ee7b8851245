#include "core/idle_option.h"

#include <algorithm>
#include <array>

#include "core/closest_option.h"

namespace tidewatch {
namespace {

using IdleRow = OptionRow<IdleOption, std::int64_t>;

constexpr std::array idleRows{
    IdleRow{IdleOption::one, 60, "1 min"},       IdleRow{IdleOption::three, 180, "3 min"},
    IdleRow{IdleOption::five, 300, "5 min"},     IdleRow{IdleOption::ten, 600, "10 min"},
    IdleRow{IdleOption::fifteen, 900, "15 min"}, IdleRow{IdleOption::thirty, 1800, "30 min"},
};

constexpr auto idleOptions = [] {
    std::array<IdleOption, idleRows.size()> result{};
    std::ranges::transform(idleRows, result.begin(), &IdleRow::option);
    return result;
}();

const IdleRow& rowOf(IdleOption option) {
    return idleRows[static_cast<std::size_t>(option)];
}

// Unsigned, because the difference of two signed integers need not fit into one.
std::uint64_t idleDistance(std::int64_t raw, std::int64_t value) {
    const auto a = static_cast<std::uint64_t>(raw);
    const auto b = static_cast<std::uint64_t>(value);
    return raw > value ? a - b : b - a;
}

}  // namespace

std::span<const IdleOption> allIdleOptions() {
    return idleOptions;
}

std::int64_t rawValue(IdleOption option) {
    return rowOf(option).raw;
}

std::string_view label(IdleOption option) {
    return rowOf(option).label;
}

std::optional<IdleOption> idleOption(std::int64_t raw) {
    const auto* row = std::ranges::find(idleRows, raw, &IdleRow::raw);
    return row == idleRows.end() ? std::nullopt : std::optional(row->option);
}

IdleOption closestIdleOption(std::int64_t raw) {
    return closestOption<IdleOption, std::int64_t>(idleRows, raw, idleDistance);
}

}  // namespace tidewatch
