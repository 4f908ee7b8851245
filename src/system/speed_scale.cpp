#include "system/speed_scale.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tidewatch {

namespace {

constexpr double leastHint = 30;
constexpr double step = 1000;  // above the table

struct Row {
    double upTo;
    double scale;
};
constexpr auto rows = std::to_array<Row>(
    {{46, 50}, {92, 100}, {230, 250}, {460, 500}, {920, 1000}, {2300, 2500}, {4600, 5000}, {9200, 10000}});

}  // namespace

double niceMax(double mbps) {
    const auto hint = std::max(mbps, leastHint);
    const auto* row = std::ranges::lower_bound(rows, hint, {}, &Row::upTo);
    return row != rows.end() ? row->scale : std::ceil(hint / step) * step;
}

}  // namespace tidewatch
