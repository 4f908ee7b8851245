#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/seconds.h"
#include "base/tagged_string.h"
#include "classification/app_info_resolver.h"
#include "classification/category.h"
#include "classification/category_store.h"
#include "classification/tier.h"
#include "core/clock_keys.h"
#include "core/minute_store.h"

namespace tidewatch {

/// Ten minutes of a day.
struct BucketSummary {
    BucketKey id;
    int hour = 0;     ///< 0 to 23
    int minute = 0;   ///< 0 to 50, a multiple of ten
    Seconds seconds;  ///< all of the bucket, uncategorized ones included
    Seconds productive;
    Seconds neutral;
    Seconds distracting;

    bool operator==(const BucketSummary&) const = default;

    /// The tier with most seconds. Productive wins any tie, distracting one with neutral; uncategorized if
    /// none of the three has any.
    [[nodiscard]] Tier dominantTier() const;

    /// The share of the ten minutes that is filled, 0 and up; above 1 if more was booked than passed.
    [[nodiscard]] double fillRatio() const;
};

struct TopActivity {
    AppId app;
    std::string name;
    std::optional<AppIcon> icon;
    Seconds seconds;
    Tier tier = Tier::uncategorized;
    bool operator==(const TopActivity&) const = default;
};

struct TopCategory {
    Category category = Category::uncategorized;
    Seconds seconds;
    Tier tier = Tier::uncategorized;
    bool operator==(const TopCategory&) const = default;
};

/// One clock hour of a day with its ten-minute buckets and what filled it most.
struct HourGroup {
    DayKey day;
    int hour = 0;                        ///< 0 to 23
    std::vector<BucketSummary> buckets;  ///< all six, by minute
    Seconds totalSeconds;
    Seconds productive;
    Seconds neutral;
    Seconds distracting;
    std::vector<TopActivity> topActivities;  ///< at most 6, most seconds first
    std::vector<TopCategory> topCategories;  ///< at most 5, most seconds first

    bool operator==(const HourGroup&) const = default;

    [[nodiscard]] std::string id() const { return day.text() + "-" + std::to_string(hour); }
    [[nodiscard]] bool hasActivity() const { return totalSeconds > Seconds(); }
};

/// The hours of `day` that have any seconds, in the order in which the day passes them. Of equal applications
/// the one whose identifier sorts first stands first, of equal categories the one that the enumeration has
/// first. Main thread only.
[[nodiscard]] std::vector<HourGroup> hourGroups(const MinuteStore& minutes, const CategoryStore& categories,
                                                const AppInfoResolver& apps, const ClockKeys& keys,
                                                const DayKey& day);

}  // namespace tidewatch
