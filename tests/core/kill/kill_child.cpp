// A core that ticks much faster than real time, on the real disk, until it is killed.
//
// Usage: kill_child HOME START, where START is the wall clock in seconds since 1970. Prints to its standard
// output what it loaded, "loaded DAYS APPS HOURS MINUTES PROJECTS", and after each completed
// flush what that flush wrote, "flushed ...": the sums of all seconds in each store.

#include <fmt/format.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "base/serial_queue.h"
#include "core/app_usage_store.h"
#include "core/broadcaster.h"
#include "core/clock_keys.h"
#include "core/daily_store.h"
#include "core/day_rule.h"
#include "core/hourly_store.h"
#include "core/idle_monitor.h"
#include "core/minute_store.h"
#include "core/settings.h"
#include "core/timer_engine.h"
#include "platform/fake/fake_clock.h"
#include "platform/fake/fake_frontmost_application.h"
#include "platform/fake/fake_input_activity.h"
#include "platform/fake/fake_main_loop.h"
#include "platform/fake/fake_randomness.h"
#include "platform/fake/memory_preferences.h"
#include "platform/posix/posix_file_system.h"
#include "platform/posix/stderr_log.h"
#include "projects/active_project_booking.h"
#include "projects/project_store.h"
#include "projects/project_time_store.h"

namespace {

using namespace tidewatch;
using namespace std::chrono_literals;

constexpr int ticksBetweenFlushes = 30;

Seconds sumOf(const UsageSnapshot& snapshot) {
    Seconds sum;
    UsageSnapshot::Reader reader(snapshot);
    for (UsageSnapshot::Index key = 0; key < snapshot.keyCount(); ++key) {
        reader.forEachApp(key, [&](std::uint32_t, Seconds seconds) { sum += seconds; });
    }
    return sum;
}

Seconds sumOf(const DailyStore& daily) {
    Seconds sum;
    for (const auto& day : daily.allDays()) sum += day.seconds;
    return sum;
}

Seconds sumOf(const AppUsageStore& apps) {
    Seconds sum;
    for (const auto& app : apps.aggregate(apps.allDayKeys())) sum += app.seconds;
    return sum;
}

Seconds sumOf(const ProjectTimeStore& times, const std::vector<DayKey>& days) {
    Seconds sum;
    for (const auto& day : days) sum += times.taggedSeconds(day);
    return sum;
}

// A single write, so that a line is printed whole or not at all.
void say(const std::string& line) {
    if (::write(STDOUT_FILENO, line.data(), line.size()) != static_cast<ssize_t>(line.size())) std::exit(3);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    platform::PosixFileSystem files{std::string(argv[1])};
    platform::FakeClock clock{Instant(std::chrono::seconds(std::atoll(argv[2])))};
    platform::FakeMainLoop loop(clock);
    platform::FakeInputActivity input;
    platform::FakeFrontmostApplication frontmost;
    platform::MemoryPreferences preferences;
    platform::StderrLog log;
    platform::FakeRandomness randomness;
    const Settings settings(preferences);
    const DayRule dayRule(clock, settings);
    const IdleMonitor idleMonitor(input);
    const ClockKeys keys(clock, settings, dayRule);
    DailyStore daily(files, log, dayRule);
    AppUsageStore apps(files, log, frontmost);
    HourlyStore hours(files, log, frontmost);
    MinuteStore minutes(files, log, frontmost);
    const Broadcaster broadcaster;
    ProjectStore projects(files, log, randomness, broadcaster);
    ProjectTimeStore times(files, log, frontmost);
    ActiveProjectBooking booking(projects, times);
    SerialQueue disk([](JobQueue::Job) {});
    TimerEngine engine(clock, loop, settings, idleMonitor, keys, {daily, apps, hours, minutes}, disk,
                       {nullptr, nullptr, &booking});
    const auto tell = [&](const char* what) {
        say(fmt::format("{} {} {} {} {} {}\n", what, sumOf(daily).count(), sumOf(apps).count(),
                        sumOf(hours.snapshot()).count(), sumOf(minutes.snapshot()).count(),
                        sumOf(times, apps.allDayKeys()).count()));
    };

    tell("loaded");
    if (!projects.activeProjectId()) projects.setActive(projects.addProject("Proyecto").id);
    engine.start();
    for (int tick = 1;; ++tick) {
        frontmost.set(AppId(fmt::format("org.example.application{:02}", tick % 40)));
        loop.runFor(1s);
        if (tick % ticksBetweenFlushes == 0) {
            disk.finish();
            tell("flushed");
            clock.suspend(1h);  // so that day changes, which flush too, are frequent
        }
    }
}
