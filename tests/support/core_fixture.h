#pragma once

#include <memory>
#include <utility>

#include "core/counting.h"
#include "tests/support/fake_world.h"

namespace tidewatch::test {

/// What counting needs of the world.
inline Counting::Dependencies countingDependencies(FakeWorld& world) {
    return {.clock = world.clock,
            .files = world.files,
            .log = world.log,
            .preferences = world.preferences,
            .inputActivity = world.inputActivity,
            .frontmost = world.frontmost};
}

/// The program's core in a fake world; a second one in the same world is a restart. `queue` writes to disk;
/// null for one of the world's.
struct CoreFixture : Counting {
    explicit CoreFixture(FakeWorld& world, TickListeners listeners = {},
                         std::unique_ptr<JobQueue> queue = nullptr)
        : Counting(countingDependencies(world)),
          disk(queue ? std::move(queue) : world.queues.makeQueue("record")),
          engine(world.clock, world.mainLoop, settings, idleMonitor, keys, stores(), *disk, listeners) {}

    std::unique_ptr<JobQueue> disk;
    TimerEngine engine;
};

}  // namespace tidewatch::test
