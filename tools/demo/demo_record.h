#pragma once

#include <chrono>
#include <cstdint>

#include "analysis/goal_settings.h"
#include "classification/category_overrides.h"
#include "core/counter_record.h"
#include "projects/project_file.h"

namespace tidewatch::demo {

/// The time on the clock on the wall.
struct WallMoment {
    std::chrono::sys_days day;
    std::chrono::minutes sinceMidnight{0};
};

/// A year in the life of somebody who writes programs, draws and answers mail for a small studio.
struct DemoRecord {
    CounterRecord today{1};
    CounterRecord apps{2};
    CounterRecord hours{2};
    CounterRecord minutes{2};
    CounterRecord projectTime{3};
    ProjectList projects;
    CategoryOverrides overrides;
    GoalSettings goals;
};

/// The year that ends `now`, with nothing in it that lies later. The day of `now` is a working day whatever
/// it is called. The same arguments always give the same record, and days before that day do not depend on
/// the time on it.
[[nodiscard]] DemoRecord makeDemoRecord(const WallMoment& now, std::uint32_t seed = 20260421);

}  // namespace tidewatch::demo
