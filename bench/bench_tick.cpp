// One tick on a ten-year record: an ordinary one, and the 30th, which takes the snapshots to be written, with
// the one after it, which books while they are being written.

#include <algorithm>

#include "bench/support/bench_world.h"
#include "bench/support/ratio.h"
#include "platform/fake/fake_job_queue_factory.h"

namespace {

using namespace tidewatch;
using namespace tidewatch::bench;
using namespace std::chrono_literals;

constexpr double maxMillisecondsPerTick = 0.2;
constexpr double maxMillisecondsDuringFlush = 5;

void ordinaryTicks(Verdicts& verdicts, BenchWorld& world) {
    BenchCore core(world);
    core.engine.start();
    constexpr int ticks = 5;
    const auto before = core.engine.todaySeconds();
    verdicts.computation(
        "five ticks without a flush, ten years", [&] { world.loop.runFor(ticks * 1s); },
        ticks * maxMillisecondsPerTick);
    if ((core.engine.todaySeconds() - before).count() % ticks != 0 || core.engine.todaySeconds() == before) {
        giveUp("ticks were not booked");
    }
}

void snapshots(Verdicts& verdicts, BenchWorld& world) {
    BenchStores stores(world);
    platform::FakeJobQueueFactory background(world.loop);
    const auto held = background.makeQueue("record");
    background.hold();
    verdicts.computation(
        "snapshots of the stores, and a second booked while they are written, ten years",
        [&] {
            stores.flushOn(*held);
            stores.bookSecond(world.clock);
        },
        maxMillisecondsDuringFlush);
}

void ticksDuringAFlush(Verdicts& verdicts, BenchWorld& world) {
    if (verdicts.run() == Run::counted) return;
    BenchCore core(world);
    core.engine.start();
    auto best = Milliseconds::max();
    for (int flush = 0; flush < (verdicts.run() == Run::judged ? 10 : 1); ++flush) {
        world.loop.runFor(flush == 0 ? 29s : 28s);
        const auto handingOver = timed([&] { world.loop.runFor(1s); });
        const auto next = timed([&] { world.loop.runFor(1s); });
        best = std::min(best, std::max(handingOver, next));
        core.disk.finish();
    }
    verdicts.amount("a tick during a flush, the slower of two at their best, ten years", best.count(),
                    maxMillisecondsDuringFlush, "ms", "nobody sees it");
}

}  // namespace

int main() {
    BenchWorld world(makeLargeRecord({}));
    Verdicts verdicts;
    ordinaryTicks(verdicts, world);
    snapshots(verdicts, world);
    ticksDuringAFlush(verdicts, world);
    return verdicts.exitCode();
}
