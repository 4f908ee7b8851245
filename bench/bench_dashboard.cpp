// What the statistics window computes from a ten-year record: a whole day every two seconds, and the insights
// over everything.

#include "analysis/dashboard_model.h"
#include "analysis/insights_engine.h"
#include "bench/support/bench_world.h"
#include "bench/support/ratio.h"
#include "classification/classification.h"
#include "platform/fake/fake_time_zone.h"

int main() {
    using namespace tidewatch;
    using namespace tidewatch::bench;

    const auto record = makeLargeRecord({});
    BenchWorld world(record);
    world.clock.setZone(platform::madridZone());
    const BenchStores stores(world);
    const Classification classification(
        {.files = world.files, .log = world.log, .applications = world.applications, .apps = stores.apps});
    const Broadcaster broadcaster;
    ProjectStore projects(world.files, world.log, world.randomness, broadcaster);
    projects.addProject("Casa");

    world.clock.setNow(std::chrono::sys_days(std::chrono::December / 19 / 2025) + std::chrono::hours(18));
    DashboardModel dashboard({world.clock, world.loop, stores.days, stores.apps, stores.hours, stores.minutes,
                              stores.keys, classification.categories, classification.scorer, projects,
                              stores.times, classification.appInfo});
    const InsightsEngine insights(world.clock, stores.days, stores.hours, stores.minutes,
                                  classification.categories);

    Verdicts verdicts;
    verdicts.computation(
        "dashboard reload, ten years",
        [&] {
            dashboard.reload();
            if (dashboard.hourGroups().size() != 9) giveUp("the day is not what it should be");
        },
        5);
    verdicts.computation(
        "insights over everything, ten years",
        [&] {
            if (insights.compute(InsightsRange::all).activeDays != 2600) {
                giveUp("the record is not what it should be");
            }
        },
        5);
    return verdicts.exitCode();
}
