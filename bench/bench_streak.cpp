// The maximum streak, on a ten-year record in which every day counts.

#include <array>
#include <string_view>

#include "analysis/goal_tracking.h"
#include "base/calendar_day.h"
#include "bench/support/bench_world.h"
#include "bench/support/ratio.h"
#include "classification/classification.h"

namespace {

using namespace tidewatch;
using namespace tidewatch::bench;

constexpr std::chrono::sys_days today = std::chrono::January / 15 / 2026;
constexpr int daysThatCount = 400;

// Weekends and days after the record's end get a full day with every application, so that no day is cheaper
// than a working day.
void fillGaps(LargeRecord& record, const std::vector<AppSeconds>& fullDay) {
    for (int i = 0; i <= daysThatCount; ++i) {
        const auto day = toDayKey(today - std::chrono::days(i));
        const std::array<std::string_view, 1> dayPath{day.text()};
        if (record.today.seconds(dayPath) > Seconds()) continue;
        for (const auto& [app, seconds] : fullDay) {
            record.today.add(dayPath, seconds);
            record.apps.add(std::array<std::string_view, 2>{day.text(), app.text()}, seconds);
        }
    }
}

struct Fixture : BenchStores, Classification {
    explicit Fixture(BenchWorld& world)
        : BenchStores(world),
          Classification(
              {.files = world.files, .log = world.log, .applications = world.applications, .apps = apps}),
          goals({.clock = world.clock,
                 .files = world.files,
                 .log = world.log,
                 .days = days,
                 .scorer = scorer}) {}

    GoalTracking goals;
};

std::vector<AppSeconds> everyApplication(const LargeRecord& record) {
    BenchWorld world(record);
    const Fixture fixture(world);
    const auto days = fixture.apps.allDayKeys();
    auto applications = fixture.apps.aggregate(days);
    for (auto& application : applications) application.seconds = Seconds(600);
    return applications;
}

}  // namespace

int main() {
    auto record = makeLargeRecord({});
    const auto applications = everyApplication(record);
    fillGaps(record, applications);
    BenchWorld world(record);
    Fixture fixture(world);
    for (std::size_t i = 0; i < applications.size(); i += 2) {
        fixture.categories.setCategory(Category::development, applications[i].app);
    }

    Verdicts verdicts;
    verdicts.computation(
        "streak of 400 days, ten years",
        [&] {
            if (fixture.goals.rewards.currentStreak() != daysThatCount)
                giveUp("the streak is not the longest");
        },
        10);
    return verdicts.exitCode();
}
