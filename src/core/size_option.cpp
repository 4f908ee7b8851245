#include "core/size_option.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/closest_option.h"

namespace tidewatch {
namespace {

using Row = OptionRow<SizeOption, double>;

constexpr std::array rows{
    Row{SizeOption::xs, 0.1, "10%"},  Row{SizeOption::sm, 0.25, "25%"},   Row{SizeOption::md, 0.5, "50%"},
    Row{SizeOption::lg, 0.75, "75%"}, Row{SizeOption::full, 1.0, "100%"}, Row{SizeOption::huge, 5.0, "500%"},
};

constexpr auto options = [] {
    std::array<SizeOption, rows.size()> result{};
    std::ranges::transform(rows, result.begin(), &Row::option);
    return result;
}();

const Row& rowOf(SizeOption option) {
    return rows[static_cast<std::size_t>(option)];
}

double distance(double raw, double value) {
    return std::abs(raw - value);
}

}  // namespace

std::span<const SizeOption> allSizeOptions() {
    return options;
}

double rawValue(SizeOption option) {
    return rowOf(option).raw;
}

std::string_view label(SizeOption option) {
    return rowOf(option).label;
}

std::optional<SizeOption> sizeOption(double raw) {
    const auto* row = std::ranges::find(rows, raw, &Row::raw);
    return row == rows.end() ? std::nullopt : std::optional(row->option);
}

SizeOption closestSizeOption(double raw) {
    return closestOption<SizeOption, double>(rows, raw, distance);
}

}  // namespace tidewatch
