#pragma once

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "base/serial_queue.h"
#include "bench/support/large_record.h"
#include "core/broadcaster.h"
#include "core/counting.h"
#include "platform/fake/fake_applications.h"
#include "platform/fake/fake_clock.h"
#include "platform/fake/fake_frontmost_application.h"
#include "platform/fake/fake_input_activity.h"
#include "platform/fake/fake_log.h"
#include "platform/fake/fake_main_loop.h"
#include "platform/fake/fake_randomness.h"
#include "platform/fake/memory_preferences.h"
#include "platform/posix/posix_file_system.h"
#include "projects/active_project_booking.h"
#include "projects/project_store.h"
#include "projects/project_time_store.h"
#include "tests/support/temporary_directory.h"

namespace tidewatch::bench {

/// Aborts the benchmark: measurements after a failure would be meaningless.
inline void giveUp(const std::string& complaint) {
    std::fprintf(stderr, "%s\n", complaint.c_str());
    std::exit(2);
}

/// A machine with a real disk, scripted input and clock, and a generated record in its data directory.
struct BenchWorld {
    explicit BenchWorld(const LargeRecord& record) {
        std::filesystem::create_directory(directory.path() + "/.tidewatch");
        writeLargeRecord(record, directory.path() + "/.tidewatch");
        frontmost.set(AppId("firefox-01"));
    }

    test::TemporaryDirectory directory;
    platform::PosixFileSystem files{directory.path()};
    platform::FakeClock clock{std::chrono::sys_days(std::chrono::January / 15 / 2026) +
                              std::chrono::hours(9)};
    platform::FakeMainLoop loop{clock};
    platform::MemoryPreferences preferences;
    platform::FakeInputActivity input;
    platform::FakeFrontmostApplication frontmost;
    platform::FakeApplications applications;
    platform::FakeRandomness randomness;
    platform::FakeLog log{giveUp};
};

/// All stores, loaded.
struct BenchStores : Counting {
    explicit BenchStores(BenchWorld& world)
        : Counting({.clock = world.clock,
                    .files = world.files,
                    .log = world.log,
                    .preferences = world.preferences,
                    .inputActivity = world.input,
                    .frontmost = world.frontmost}),
          times(world.files, world.log, world.frontmost) {}

    /// Books one second everywhere, as a tick does.
    void bookSecond(const platform::Clock& clock) {
        const auto today = dayRule.today();
        days.set(days.seconds(today) + Seconds(1), today);
        apps.incrementCurrentApp(today);
        hours.incrementCurrentApp(keys.hourKey(clock.now()));
        minutes.incrementCurrentApp(keys.bucketKey(clock.now()));
        times.incrementCurrentApp(today, projectId(0));
    }

    void flush() {
        days.flush();
        apps.flush();
        hours.flush();
        minutes.flush();
        times.flush();
    }

    void flushOn(JobQueue& queue) {
        days.flushOn(queue);
        apps.flushOn(queue);
        hours.flushOn(queue);
        minutes.flushOn(queue);
        times.flushOn(queue);
    }

    ProjectTimeStore times;
};

/// The program's engine and stores in that world, with an active project.
struct BenchCore : BenchStores {
    explicit BenchCore(BenchWorld& world)
        : BenchStores(world),
          loop(world.loop),
          projects(world.files, world.log, world.randomness, broadcaster),
          booking(projects, times),
          engine(world.clock, world.loop, settings, idleMonitor, keys, stores(), disk,
                 {nullptr, nullptr, &booking}) {
        projects.setActive(projectId(0));
    }

    platform::FakeMainLoop& loop;
    Broadcaster broadcaster;
    ProjectStore projects;
    ActiveProjectBooking booking;
    SerialQueue disk{[this](JobQueue::Job job) { loop.post(std::move(job)); }};
    TimerEngine engine;
};

}  // namespace tidewatch::bench
