// One second of work on a ten-year record, without the writing of files that every 30th brings.

#include "bench/support/bench_world.h"
#include "bench/support/ratio.h"

int main() {
    using namespace tidewatch::bench;
    using namespace std::chrono_literals;

    BenchWorld world(makeLargeRecord({}));
    BenchCore core(world);
    core.engine.start();

    constexpr int ticks = 5;
    constexpr double mostMillisecondsATick = 0.2;
    const auto before = core.engine.todaySeconds();
    Verdicts verdicts;
    verdicts.computation(
        "five ticks without a flush, ten years", [&] { world.loop.runFor(ticks * 1s); },
        ticks * mostMillisecondsATick);
    if ((core.engine.todaySeconds() - before).count() % ticks != 0 || core.engine.todaySeconds() == before) {
        giveUp("ticks were not booked");
    }
    return verdicts.exitCode();
}
