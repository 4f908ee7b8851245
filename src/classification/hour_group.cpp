#include "classification/hour_group.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <map>
#include <utility>

#include "classification/productivity_score.h"

namespace tidewatch {
namespace {

constexpr std::size_t maxActivities = 6;
constexpr std::size_t maxCategories = 5;

using SecondsByApp = std::map<AppId, Seconds>;

template <class Entry>
void keepTop(std::vector<Entry>& entries, std::size_t count) {
    std::ranges::stable_sort(entries, std::ranges::greater(), &Entry::seconds);
    if (entries.size() > count)
        entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(count), entries.end());
}

// Reads the buckets of one hour of one day.
class HourReader final {
public:
    HourReader(const MinuteStore& minutes, const CategoryStore& categories, const AppInfoResolver& apps)
        : minutes_(minutes), categories_(categories), apps_(apps) {}

    HourGroup read(const DayKey& day, int hour) const {
        HourGroup group;
        group.day = day;
        group.hour = hour;
        SecondsByApp byApp;
        for (int minute = 0; minute < 60; minute += minutesPerBucket) {
            group.buckets.push_back(readBucket(day, {hour, minute}, byApp));
        }
        for (const auto& bucket : group.buckets) {
            group.totalSeconds += bucket.seconds;
            group.productive += bucket.productive;
            group.neutral += bucket.neutral;
            group.distracting += bucket.distracting;
        }
        if (group.hasActivity()) {
            group.topActivities = topActivities(byApp);
            group.topCategories = topCategories(byApp);
        }
        return group;
    }

private:
    BucketSummary readBucket(const DayKey& day, ClockMinute time, SecondsByApp& byApp) const {
        const auto key = bucketKey(day, time);
        ProductivityScore byTier;
        for (const auto& [app, seconds] : minutes_.entries(key)) {
            byTier.add(categories_.tier(app), seconds);
            byApp[app] += seconds;
        }
        return {key,
                time.hour,
                time.minute,
                byTier.totalActive(),
                byTier.productiveSeconds,
                byTier.neutralSeconds,
                byTier.distractingSeconds};
    }

    std::vector<TopActivity> topActivities(const SecondsByApp& byApp) const {
        std::vector<TopActivity> activities;
        for (const auto& [app, seconds] : byApp) activities.push_back({app, "", {}, seconds, {}});
        keepTop(activities, maxActivities);
        for (auto& activity : activities) {
            const auto& info = apps_.info(activity.app);
            activity.name = info.name;
            activity.icon = info.icon;
            activity.tier = categories_.tier(activity.app);
        }
        return activities;
    }

    std::vector<TopCategory> topCategories(const SecondsByApp& byApp) const {
        std::map<Category, Seconds> byCategory;
        for (const auto& [app, seconds] : byApp) byCategory[categories_.category(app)] += seconds;
        std::vector<TopCategory> top;
        top.reserve(byCategory.size());
        for (const auto& [category, seconds] : byCategory) {
            top.push_back({category, seconds, categories_.tier(category)});
        }
        keepTop(top, maxCategories);
        return top;
    }

    const MinuteStore& minutes_;
    const CategoryStore& categories_;
    const AppInfoResolver& apps_;
};

}  // namespace

Tier BucketSummary::dominantTier() const {
    if (productive == Seconds() && neutral == Seconds() && distracting == Seconds()) {
        return Tier::uncategorized;
    }
    if (productive == std::max({productive, neutral, distracting})) return Tier::productive;
    return distracting < neutral ? Tier::neutral : Tier::distracting;
}

double BucketSummary::fillRatio() const {
    return static_cast<double>(seconds.count()) / static_cast<double>(bucketSize.count());
}

std::vector<HourGroup> hourGroups(const MinuteStore& minutes, const CategoryStore& categories,
                                  const AppInfoResolver& apps, const ClockKeys& keys, const DayKey& day) {
    const HourReader reader(minutes, categories, apps);
    std::vector<HourGroup> groups;
    for (const int hour : keys.hoursOfDay()) {
        auto group = reader.read(day, hour);
        if (group.hasActivity()) groups.push_back(std::move(group));
    }
    return groups;
}

}  // namespace tidewatch
