#pragma once

#include <memory>
#include <utility>

#include "core/app_usage_store.h"
#include "core/clock_keys.h"
#include "core/daily_store.h"
#include "core/day_rule.h"
#include "core/hourly_store.h"
#include "core/idle_monitor.h"
#include "core/minute_store.h"
#include "core/settings.h"
#include "core/timer_engine.h"
#include "tests/support/fake_world.h"

namespace tidewatch::test {

/// The program's core in a fake world; a second one in the same world is a restart. `queue` writes to disk;
/// null for one of the world's.
struct CoreFixture {
    explicit CoreFixture(FakeWorld& world, TickListeners listeners = {},
                         std::unique_ptr<JobQueue> queue = nullptr)
        : settings(world.preferences),
          dayRule(world.clock, settings),
          keys(world.clock, settings, dayRule),
          idleMonitor(world.inputActivity),
          daily(world.files, world.log, dayRule),
          apps(world.files, world.log, world.frontmost),
          hours(world.files, world.log, world.frontmost),
          minutes(world.files, world.log, world.frontmost),
          disk(queue ? std::move(queue) : world.queues.makeQueue("record")),
          engine(world.clock, world.mainLoop, settings, idleMonitor, keys, {daily, apps, hours, minutes},
                 *disk, listeners) {}

    Settings settings;
    DayRule dayRule;
    ClockKeys keys;
    IdleMonitor idleMonitor;
    DailyStore daily;
    AppUsageStore apps;
    HourlyStore hours;
    MinuteStore minutes;
    std::unique_ptr<JobQueue> disk;
    TimerEngine engine;
};

}  // namespace tidewatch::test
