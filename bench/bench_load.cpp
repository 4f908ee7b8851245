// Reading a ten-year record at the start, and what it takes in memory afterwards.

#include <fmt/core.h>
#include <malloc.h>

#include <optional>

#include "bench/support/bench_world.h"
#include "bench/support/ratio.h"

namespace {

using namespace tidewatch;
using namespace tidewatch::bench;

struct Stores {
    explicit Stores(BenchWorld& world)
        : settings(world.preferences),
          dayRule(world.clock, settings),
          daily(world.files, world.log, dayRule),
          apps(world.files, world.log, world.workspace) {}

    Settings settings;
    DayRule dayRule;
    DailyStore daily;
    AppUsageStore apps;
};

double heapMegabytes() {
    const auto info = ::mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd) / 1e6;
}

}  // namespace

int main() {
    BenchWorld world(makeLargeRecord({}));
    std::vector<Milliseconds> times;
    std::optional<Stores> stores;
    double heap = 0;
    for (int round = 0; round < 15; ++round) {
        stores.reset();
        const auto before = heapMegabytes();
        times.push_back(timed([&] { stores.emplace(world); }));
        heap = heapMegabytes() - before;
    }
    if (stores->daily.allDays().size() != 2600) giveUp("the record was not loaded");

    Verdicts verdicts;
    verdicts.compare("load today and apps, ten years", median(times).count(), 80, "ms",
                     "bar of all counter files together");
    verdicts.compare("heap of today and apps, ten years", heap, 15, "MB",
                     "bar of all counter files together");
    return verdicts.exitCode();
}
