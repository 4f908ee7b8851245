#include "analysis/insights.h"

#include "classification/closed_list.h"

namespace tidewatch {
namespace {

struct Row {
    InsightsRange value;
    std::string_view raw;
    std::string_view label;
    std::optional<int> days;
};

constexpr std::array rows{
    Row{InsightsRange::week, "week", "Semana", 7},
    Row{InsightsRange::month, "month", "Mes", 30},
    Row{InsightsRange::all, "all", "Todo", std::nullopt},
};

constexpr auto ranges = valuesOf(rows);

}  // namespace

std::span<const InsightsRange> allInsightsRanges() {
    return ranges;
}

std::string_view rawValue(InsightsRange range) {
    return rowOf(rows, range).raw;
}

std::string_view label(InsightsRange range) {
    return rowOf(rows, range).label;
}

std::optional<int> days(InsightsRange range) {
    return rowOf(rows, range).days;
}

}  // namespace tidewatch
