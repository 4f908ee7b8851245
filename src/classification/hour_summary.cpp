#include "classification/hour_summary.h"

#include "classification/productivity_score.h"

namespace tidewatch {

double HourSummary::score() const {
    return productiveShare(productive, distracting);
}

bool HourSummary::isSparse() const {
    return productive + distracting < Seconds(30);
}

std::vector<HourSummary> dayHourSummaries(const HourlyStore& hours, const CategoryStore& categories,
                                          const ClockKeys& keys, const DayKey& day) {
    std::vector<HourSummary> summaries;
    summaries.reserve(hoursPerDay);
    for (const int hour : keys.hoursOfDay()) {
        const auto key = hourKey(day, hour);
        ProductivityScore byTier;
        for (const auto& [app, seconds] : hours.entries(key)) byTier.add(categories.tier(app), seconds);
        summaries.push_back({key, hour, byTier.totalActive(), byTier.productiveSeconds, byTier.neutralSeconds,
                             byTier.distractingSeconds});
    }
    return summaries;
}

}  // namespace tidewatch
