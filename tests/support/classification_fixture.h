#pragma once

#include <vector>

#include "classification/classification.h"
#include "classification/hour_group.h"
#include "classification/hour_summary.h"
#include "tests/support/core_fixture.h"

namespace tidewatch::test {

/// The core with its classification.
struct ClassificationFixture : CoreFixture, Classification {
    explicit ClassificationFixture(FakeWorld& world, TickListeners listeners = {})
        : CoreFixture(world, listeners),
          Classification(
              {.files = world.files, .log = world.log, .applications = world.applications, .apps = apps}) {}

    [[nodiscard]] std::vector<HourSummary> hourSummaries(const DayKey& day) const {
        return dayHourSummaries(hours, categories, keys, day);
    }
    [[nodiscard]] std::vector<HourGroup> groups(const DayKey& day) const {
        return hourGroups(minutes, categories, appInfo, keys, day);
    }
};

}  // namespace tidewatch::test
