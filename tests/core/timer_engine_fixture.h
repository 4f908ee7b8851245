#pragma once

#include <gmock/gmock.h>

#include <optional>
#include <string>
#include <vector>

#include "core/timer_engine.h"
#include "tests/support/core_fixture.h"

namespace tidewatch {

inline const DayKey yesterday("2026-01-14");
inline const DayKey today("2026-01-15");
inline const DayKey tomorrow("2026-01-16");

/// Records the calls of all listeners, in order.
struct Listeners final : GameGateListener, BreakListener, ProjectTimeListener {
    bool playing = false;
    std::vector<std::string> calls;

    bool playingNow() const override { return playing; }
    void tickWorkSecond() override { calls.emplace_back("work"); }
    void flush() override { calls.emplace_back("flush"); }
    void flushOn(JobQueue&) override { calls.emplace_back("flush"); }
    void userWentIdle() override { calls.emplace_back("idle"); }
    void tickActiveSecond(Seconds total) override {
        calls.push_back("active " + std::to_string(total.count()));
    }
    void bookSecond(const DayKey& day) override { calls.push_back("project " + day.text()); }

    TickListeners all() { return {this, this, this, nullptr}; }
};

/// The engine and its stores in a fake world.
struct TimerEngineTest : testing::Test {
    test::FakeWorld world;
    std::optional<test::CoreFixture> fixture;
    const std::vector<std::string> allFiles{world.todayJson, world.appsJson, world.hoursJson,
                                            world.minutesJson};

    TimerEngine& start(TickListeners listeners = {}) {
        fixture.emplace(world, listeners);
        fixture->engine.start();
        return fixture->engine;
    }
    void tick(int times = 1) { world.mainLoop.runFor(std::chrono::seconds(times)); }
    void setTimeOfDay(std::chrono::milliseconds time) {
        world.clock.setNow(std::chrono::sys_days(std::chrono::January / 15 / 2026) + time);
    }

    [[nodiscard]] Seconds stored(const DayKey& day) const { return fixture->days.seconds(day); }
    [[nodiscard]] std::vector<AppSeconds> apps(const DayKey& day) const {
        return fixture->apps.aggregate(std::vector{day});
    }
    [[nodiscard]] std::vector<AppSeconds> hour(const char* key) const {
        return fixture->hours.entries(HourKey(key));
    }
    [[nodiscard]] std::vector<AppSeconds> bucket(const char* key) const {
        return fixture->minutes.entries(BucketKey(key));
    }
    [[nodiscard]] std::string onDisk(const std::string& path) const {
        return world.files.content(path).value_or("no file");
    }
    [[nodiscard]] std::vector<std::string> writtenSince(std::size_t count) const {
        const auto writes = world.files.writes();
        return {writes.begin() + static_cast<std::ptrdiff_t>(count), writes.end()};
    }
};

}  // namespace tidewatch
