#pragma once

#include <span>
#include <vector>

#include "core/keyed_app_store.h"

namespace tidewatch {

/// Seconds booked per logical day and application ("apps.json").
class AppUsageStore final : public KeyedAppStore<DayKey> {
public:
    AppUsageStore(platform::FileSystem& files, platform::Log& log, platform::FrontmostApplication& frontmost)
        : KeyedAppStore(files, log, frontmost, "apps.json", "Tidewatch: failed to flush app usage store: ") {}

    /// Sums per application over `days`, in descending order, ties in no particular order. A day given twice
    /// counts twice; an unknown one adds nothing.
    [[nodiscard]] std::vector<AppSeconds> aggregate(std::span<const DayKey> days) const;

    /// Every day that has an entry, in ascending order.
    [[nodiscard]] std::vector<DayKey> allDayKeys() const { return counters().days(); }
};

}  // namespace tidewatch
