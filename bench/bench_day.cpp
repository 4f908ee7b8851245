// A day of a ten-year record as the statistics window reads it, and a snapshot of everything for the
// insights.

#include "bench/support/bench_world.h"
#include "bench/support/ratio.h"
#include "classification/hour_group.h"
#include "classification/hour_summary.h"
#include "classification/productivity_score.h"

int main() {
    using namespace tidewatch;
    using namespace tidewatch::bench;

    const auto record = makeLargeRecord({});
    BenchWorld world(record);
    const BenchStores stores(world);
    const CategoryStore categories(world.files, world.log, world.applications);
    const AppInfoResolver apps(world.applications);
    const ProductivityScorer scorer(stores.apps, categories);
    const auto& day = record.lastDay;

    Verdicts verdicts;
    verdicts.computation(
        "hour groups of a day, ten years",
        [&] {
            if (hourGroups(stores.minutes, categories, apps, stores.keys, day).size() != 9) {
                giveUp("the day is not what it should be");
            }
        },
        1);
    verdicts.computation(
        "hour summaries of a day, ten years",
        [&] {
            if (dayHourSummaries(stores.hours, categories, stores.keys, day).empty()) {
                giveUp("the day's hours are not what they should be");
            }
        },
        1);
    // The status item needs it every second.
    verdicts.computation(
        "score of a day, ten years",
        [&] {
            if (scorer.compute(std::vector{day}) == ProductivityScore()) {
                giveUp("the score is of no day");
            }
        },
        0.1);
    // The limit of insights over everything is 5 ms.
    verdicts.computation(
        "snapshots of hours and minutes, ten years",
        [&] {
            const auto hours = stores.hours.snapshot();
            const auto minutes = stores.minutes.snapshot();
            if (hours.keyCount() >= minutes.keyCount()) giveUp("the snapshots are not what they should be");
        },
        3);
    return verdicts.exitCode();
}
