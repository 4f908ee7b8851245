#include "core/size_option.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/closest_option.h"

namespace tidewatch {
namespace {

using SizeRow = OptionRow<SizeOption, double>;

constexpr std::array sizeRows{
    SizeRow{SizeOption::xs, 0.1, "10%"},    SizeRow{SizeOption::sm, 0.25, "25%"},
    SizeRow{SizeOption::md, 0.5, "50%"},    SizeRow{SizeOption::lg, 0.75, "75%"},
    SizeRow{SizeOption::full, 1.0, "100%"}, SizeRow{SizeOption::huge, 5.0, "500%"},
};

constexpr auto sizeOptions = [] {
    std::array<SizeOption, sizeRows.size()> result{};
    std::ranges::transform(sizeRows, result.begin(), &SizeRow::option);
    return result;
}();

const SizeRow& rowOf(SizeOption option) {
    return sizeRows[static_cast<std::size_t>(option)];
}

double sizeDistance(double raw, double value) {
    return std::abs(raw - value);
}

}  // namespace

std::span<const SizeOption> allSizeOptions() {
    return sizeOptions;
}

double rawValue(SizeOption option) {
    return rowOf(option).raw;
}

std::string_view label(SizeOption option) {
    return rowOf(option).label;
}

std::optional<SizeOption> sizeOption(double raw) {
    const auto* row = std::ranges::find(sizeRows, raw, &SizeRow::raw);
    return row == sizeRows.end() ? std::nullopt : std::optional(row->option);
}

SizeOption closestSizeOption(double raw) {
    return closestOption<SizeOption, double>(sizeRows, raw, sizeDistance);
}

}  // namespace tidewatch
