#pragma once

#include <memory>
#include <string>

#include "analysis/insights.h"
#include "base/instant.h"
#include "base/tagged_string.h"
#include "classification/category_store.h"
#include "core/daily_store.h"
#include "core/hourly_store.h"
#include "core/minute_store.h"
#include "platform/api/clock.h"

namespace tidewatch {

/// Looks back over the record. Reads only and keeps nothing. Main thread only.
class InsightsEngine final {
public:
    /// All five must outlive it.
    InsightsEngine(const platform::Clock& clock, const DailyStore& days, const HourlyStore& hours,
                   const MinuteStore& minutes, const CategoryStore& categories);

    /// Malformed keys are ignored.
    [[nodiscard]] Insights compute(InsightsRange range, Instant now) const;
    [[nodiscard]] Insights compute(InsightsRange range) const { return compute(range, clock_.now()); }

    /// "vie 20 nov"; a key that is no date is returned unchanged.
    [[nodiscard]] std::string shortDate(const DayKey& day) const;
    [[nodiscard]] std::string shortDate(Instant instant) const;

    /// "9:05 am".
    [[nodiscard]] std::string clockTime(Instant instant) const;

    /// "12 am" for 0, "3 pm" for 15; taken modulo 24.
    [[nodiscard]] static std::string hourLabel(int hour);

private:
    /// Key of the first day of the range; empty if unlimited.
    [[nodiscard]] std::string cutoffKey(InsightsRange range, Instant now) const;

    const platform::Clock& clock_;
    const std::shared_ptr<const platform::TimeZone> namingZone_;
    const DailyStore& days_;
    const HourlyStore& hours_;
    const MinuteStore& minutes_;
    const CategoryStore& categories_;
};

}  // namespace tidewatch
