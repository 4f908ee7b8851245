// The maximum streak, on a ten-year record in which every day counts.

#include <array>
#include <string_view>

#include "analysis/goal_evaluator.h"
#include "analysis/goal_store.h"
#include "analysis/reward_engine.h"
#include "base/calendar_day.h"
#include "bench/support/bench_world.h"
#include "bench/support/ratio.h"
#include "classification/category_store.h"
#include "classification/productivity_score.h"

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

struct Fixture {
    explicit Fixture(BenchWorld& world)
        : settings(world.preferences),
          dayRule(world.clock, settings),
          daily(world.files, world.log, dayRule),
          apps(world.files, world.log, world.frontmost),
          categories(world.files, world.log, world.applications),
          scorer(apps, categories),
          goals(world.files, world.log),
          evaluator(world.clock, goals, daily, scorer),
          rewards(world.clock, goals, daily, scorer, evaluator) {}

    Settings settings;
    DayRule dayRule;
    DailyStore daily;
    AppUsageStore apps;
    CategoryStore categories;
    ProductivityScorer scorer;
    GoalStore goals;
    GoalEvaluator evaluator;
    RewardEngine rewards;
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
            if (fixture.rewards.currentStreak() != daysThatCount) giveUp("the streak is not the longest");
        },
        10);
    return verdicts.exitCode();
}
