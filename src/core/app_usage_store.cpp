#include "core/app_usage_store.h"

#include <algorithm>
#include <functional>

namespace tidewatch {

std::vector<AppSeconds> AppUsageStore::aggregate(std::span<const DayKey> days) const {
    auto result = counters().aggregate(days);
    std::ranges::stable_sort(result, std::ranges::greater(), &AppSeconds::seconds);
    return result;
}

}  // namespace tidewatch
