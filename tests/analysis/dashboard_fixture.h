#pragma once

#include <optional>
#include <string>
#include <vector>

#include "analysis/dashboard_model.h"
#include "core/broadcaster.h"
#include "projects/active_project_booking.h"
#include "projects/project_store.h"
#include "projects/project_time_store.h"
#include "tests/support/classification_fixture.h"

namespace tidewatch::test {

/// Everything that the statistics window reads, in a fake world.
struct DashboardFixture : ClassificationFixture {
    explicit DashboardFixture(FakeWorld& world)
        : ClassificationFixture(world),
          projects(world.files, world.log, world.randomness, broadcaster),
          projectTime(world.files, world.log, world.frontmost),
          clock(world.clock),
          mainLoop(world.mainLoop) {}

    Broadcaster broadcaster;
    ProjectStore projects;
    ProjectTimeStore projectTime;
    const platform::Clock& clock;
    platform::MainLoop& mainLoop;

    [[nodiscard]] DashboardModel::Sources sources() const {
        return {clock, mainLoop,   days,   apps,     hours,       minutes,
                keys,  categories, scorer, projects, projectTime, appInfo};
    }
};

}  // namespace tidewatch::test
