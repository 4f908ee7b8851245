// One second of work on a ten-year record, without the writing of files that every 30th brings.

#include "bench/support/bench_world.h"
#include "bench/support/ratio.h"

int main() {
    using namespace tidewatch::bench;
    using namespace std::chrono_literals;

    BenchWorld world(makeLargeRecord({}));
    BenchCore core(world);
    core.engine.start();

    constexpr int ticksBetweenFlushes = 30;
    std::vector<Milliseconds> times;
    for (int tick = 1; tick <= 100 * ticksBetweenFlushes; ++tick) {
        const auto time = timed([&] { world.loop.runFor(1s); });
        if (tick % ticksBetweenFlushes != 0) times.push_back(time);
    }
    if (core.engine.todaySeconds().count() != 100 * ticksBetweenFlushes) giveUp("ticks were not booked");

    Verdicts verdicts;
    verdicts.compare("tick without a flush, ten years", 1000 * median(times).count(), 200, "us", "fixed bar");
    return verdicts.exitCode();
}
