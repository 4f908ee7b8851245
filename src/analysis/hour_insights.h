#pragma once

#include <string_view>

#include "analysis/insights.h"
#include "classification/category_store.h"
#include "core/usage_snapshot.h"

namespace tidewatch {

/// Fills in the insights derived from hours of the days from `cutoffKey` on: the histogram, the peak hours
/// and the best score. Hours with a malformed key are ignored. On a tie the earliest day is the best one.
/// Main thread only.
void addHourInsights(const UsageSnapshot& hours, std::string_view cutoffKey, const CategoryStore& categories,
                     Insights& insights);

}  // namespace tidewatch
