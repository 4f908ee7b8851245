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

/// A ten-minute bucket of a day.
struct BucketSummary {
    BucketKey id;
    int hour = 0;     ///< 0 to 23
    int minute = 0;   ///< 0 to 50, a multiple of ten
    Seconds seconds;  ///< all of the bucket, uncategorized ones included
    Seconds productive;
    Seconds neutral;
    Seconds distracting;

    bool operator==(const BucketSummary&) const = default;

    /// The tier with the most seconds. On a tie productive wins, then distracting; uncategorized if none of
    /// the three has any.
    [[nodiscard]] Tier dominantTier() const;

    /// The filled share of the ten minutes, 0 or more; above 1 if more was booked than elapsed.
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

/// One clock hour of a day with its ten-minute buckets, top applications and top categories.
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

/// The hours of `day` that have any seconds, in the order of the day. Ties between applications are ordered
/// by identifier, ties between categories by enumerator. Main thread only.
[[nodiscard]] std::vector<HourGroup> hourGroups(const MinuteStore& minutes, const CategoryStore& categories,
                                                const AppInfoResolver& apps, const ClockKeys& keys,
                                                const DayKey& day);

}  // namespace tidewatch
