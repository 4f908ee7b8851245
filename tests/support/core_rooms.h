#pragma once

#include "core/app_usage_store.h"
#include "core/daily_store.h"
#include "core/day_rule.h"
#include "core/idle_monitor.h"
#include "core/settings.h"
#include "core/timer_engine.h"
#include "tests/support/fake_world.h"

namespace tidewatch::test {

/// One run of the program's core in a world; a second one in the same world is the next start.
struct CoreRooms {
    explicit CoreRooms(FakeWorld& world, TickListeners listeners = {})
        : settings(world.preferences),
          dayRule(world.clock, settings),
          idleMonitor(world.inputActivity),
          daily(world.files, world.log, dayRule),
          apps(world.files, world.log, world.workspace),
          engine(world.clock, world.mainLoop, settings, idleMonitor, daily, apps, listeners) {}

    Settings settings;
    DayRule dayRule;
    IdleMonitor idleMonitor;
    DailyStore daily;
    AppUsageStore apps;
    TimerEngine engine;
};

}  // namespace tidewatch::test
