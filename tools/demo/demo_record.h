#pragma once

#include <chrono>
#include <cstdint>

#include "analysis/goal_settings.h"
#include "classification/category_overrides.h"
#include "core/counter_record.h"
#include "projects/project_file.h"

namespace tidewatch::demo {

/// Local time.
struct WallMoment {
    std::chrono::sys_days day;
    std::chrono::minutes sinceMidnight{0};
};

/// A year of work of somebody who programs, designs and answers mail for a small studio.
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

/// The year ending at `now`. The day of `now` is a working day, whatever its weekday. Deterministic; earlier
/// days do not depend on the time of day of `now`.
[[nodiscard]] DemoRecord makeDemoRecord(const WallMoment& now, std::uint32_t seed = 20260421);

}  // namespace tidewatch::demo
