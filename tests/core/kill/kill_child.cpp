// A core that works much faster than time, on the real disk, until it is killed.
//
// Usage: kill_child HOME START, where START is the wall clock in seconds since 1970. Says on its standard
// output what it found at the start, "loaded DAYS APPS", and after each completed flush what that flush
// wrote, "flushed DAYS APPS": the sums of all seconds in both stores.

#include <fmt/format.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "core/app_usage_store.h"
#include "core/daily_store.h"
#include "core/day_rule.h"
#include "core/idle_monitor.h"
#include "core/settings.h"
#include "core/timer_engine.h"
#include "platform/fake/fake_clock.h"
#include "platform/fake/fake_input_activity.h"
#include "platform/fake/fake_main_loop.h"
#include "platform/fake/fake_workspace.h"
#include "platform/fake/memory_preferences.h"
#include "platform/linux/posix_file_system.h"
#include "platform/linux/stderr_log.h"

namespace {

using namespace tidewatch;
using namespace std::chrono_literals;

constexpr int ticksBetweenFlushes = 30;

// One write each, so that a line is either said or not.
void say(const char* what, const DailyStore& daily, const AppUsageStore& apps) {
    Seconds days;
    for (const auto& day : daily.allDays()) days += day.seconds;
    Seconds booked;
    for (const auto& app : apps.aggregate(apps.allDayKeys())) booked += app.seconds;
    const auto line = fmt::format("{} {} {}\n", what, days.count(), booked.count());
    if (::write(STDOUT_FILENO, line.data(), line.size()) != static_cast<ssize_t>(line.size())) std::exit(3);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    platform::PosixFileSystem files{std::string(argv[1])};
    platform::FakeClock clock{Instant(std::chrono::seconds(std::atoll(argv[2])))};
    platform::FakeMainLoop loop(clock);
    platform::FakeInputActivity input;
    platform::FakeWorkspace workspace;
    platform::MemoryPreferences preferences;
    platform::StderrLog log;
    const Settings settings(preferences);
    const DayRule dayRule(clock, settings);
    const IdleMonitor idleMonitor(input);
    DailyStore daily(files, log, dayRule);
    AppUsageStore apps(files, log, workspace);
    TimerEngine engine(clock, loop, settings, idleMonitor, daily, apps, {});

    say("loaded", daily, apps);
    engine.start();
    for (int tick = 1;; ++tick) {
        workspace.setFrontmost(AppId(fmt::format("org.example.application{:02}", tick % 40)));
        loop.runFor(1s);
        if (tick % ticksBetweenFlushes == 0) {
            say("flushed", daily, apps);
            clock.suspend(1h);  // so that day changes, which flush on their own, come often
        }
    }
}
