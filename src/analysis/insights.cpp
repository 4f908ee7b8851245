#include "analysis/insights.h"

#include "classification/enum_table.h"

namespace tidewatch {
namespace {

struct RangeRow {
    InsightsRange value;
    std::string_view raw;
    std::string_view label;
    std::optional<int> days;
};

constexpr auto rangeRows = enumTable(std::array{
    RangeRow{InsightsRange::week, "week", "Semana", 7},
    RangeRow{InsightsRange::month, "month", "Mes", 30},
    RangeRow{InsightsRange::all, "all", "Todo", std::nullopt},
});

constexpr auto ranges = valuesOf(rangeRows);

}  // namespace

std::span<const InsightsRange> allInsightsRanges() {
    return ranges;
}

std::string_view rawValue(InsightsRange range) {
    return rowOf(rangeRows, range).raw;
}

std::string_view label(InsightsRange range) {
    return rowOf(rangeRows, range).label;
}

std::optional<int> days(InsightsRange range) {
    return rowOf(rangeRows, range).days;
}

}  // namespace tidewatch
