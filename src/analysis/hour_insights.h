#pragma once

#include <string_view>

#include "analysis/insights.h"
#include "classification/category_store.h"
#include "core/usage_snapshot.h"

namespace tidewatch {

/// Fills in what the hours of the days from `cutoffKey` on say: the histogram, the peak hours and the best
/// score. Hours whose key is not a day and an hour of the clock are left out. Of equal days the earliest is
/// the best one. Main thread only.
void addHourInsights(const UsageSnapshot& hours, std::string_view cutoffKey, const CategoryStore& categories,
                     Insights& insights);

}  // namespace tidewatch
