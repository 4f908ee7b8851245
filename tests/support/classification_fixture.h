#pragma once

#include "classification/app_info_resolver.h"
#include "classification/category_store.h"
#include "classification/hour_group.h"
#include "classification/hour_summary.h"
#include "classification/productivity_score.h"
#include "tests/support/core_fixture.h"

namespace tidewatch::test {

/// The core with its classification.
struct ClassificationFixture : CoreFixture {
    explicit ClassificationFixture(FakeWorld& world, TickListeners listeners = {})
        : CoreFixture(world, listeners),
          categories(world.files, world.log, world.applications),
          scorer(apps, categories),
          appInfo(world.applications) {}

    CategoryStore categories;
    ProductivityScorer scorer;
    AppInfoResolver appInfo;

    [[nodiscard]] std::vector<HourSummary> hourSummaries(const DayKey& day) const {
        return dayHourSummaries(hours, categories, keys, day);
    }
    [[nodiscard]] std::vector<HourGroup> groups(const DayKey& day) const {
        return hourGroups(minutes, categories, appInfo, keys, day);
    }
};

}  // namespace tidewatch::test
