// A day of a ten-year record as the statistics window reads it, and a copy of the whole for the insights.

#include "bench/support/bench_world.h"
#include "bench/support/ratio.h"
#include "classification/hour_group.h"
#include "classification/hour_summary.h"
#include "classification/productivity_score.h"

namespace {

using namespace tidewatch;
using namespace tidewatch::bench;

// The window reads all this anew every two seconds, and more besides, within 5 ms.
constexpr double mostMicroseconds = 1000;

template <class Work>
double microseconds(Work&& work) {
    std::vector<Milliseconds> times;
    for (int round = 0; round < 301; ++round) times.push_back(timed(work));
    return 1000 * median(times).count();
}

}  // namespace

int main() {
    const auto record = makeLargeRecord({});
    BenchWorld world(record);
    const BenchStores stores(world);
    const CategoryStore categories(world.files, world.log, world.workspace);
    const AppInfoResolver apps(world.workspace);
    const ProductivityScorer scorer(stores.apps, categories);
    const auto& day = record.lastDay;
    if (hourGroups(stores.minutes, categories, apps, stores.keys, day).size() != 9) {
        giveUp("the day is not what it should be");
    }

    Verdicts verdicts;
    verdicts.compare("hour groups of a day, ten years", microseconds([&] {
                         return hourGroups(stores.minutes, categories, apps, stores.keys, day);
                     }),
                     mostMicroseconds, "us", "fixed bar");
    verdicts.compare("hour summaries of a day, ten years", microseconds([&] {
                         return dayHourSummaries(stores.hours, categories, stores.keys, day);
                     }),
                     mostMicroseconds, "us", "fixed bar");
    verdicts.compare("score of a day, ten years",
                     microseconds([&] { return scorer.compute(std::vector{day}); }), mostMicroseconds / 10,
                     "us", "fixed bar, as the status item asks every second");
    verdicts.compare("snapshots of hours and minutes, ten years", microseconds([&] {
                         const auto hours = stores.hours.snapshot();
                         const auto minutes = stores.minutes.snapshot();
                         return hours.keyCount() + minutes.keyCount();
                     }),
                     3 * mostMicroseconds, "us", "fixed bar, as insights over everything have 5 ms");
    return verdicts.exitCode();
}
