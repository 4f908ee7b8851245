#include "core/timer_engine.h"

#include <gmock/gmock.h>

#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/core_fixture.h"

namespace tidewatch {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

using Status = TimerEngine::Status;

const DayKey yesterday("2026-01-14");
const DayKey today("2026-01-15");
const DayKey tomorrow("2026-01-16");

// Writes down what the engine tells the rooms above, in order.
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
    void tick(int times = 1) { world.mainLoop.runFor(seconds(times)); }
    void setTimeOfDay(milliseconds time) { world.clock.setNow(sys_days(2026y / 1 / 15) + time); }

    [[nodiscard]] Seconds stored(const DayKey& day) const { return fixture->daily.seconds(day); }
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

TEST_F(TimerEngineTest, StartsWithTheStoredTotalAndWithoutTicking) {
    world.files.put(world.todayJson, R"({"2026-01-15":500})");
    const test::CoreFixture unstarted(world);
    EXPECT_EQ(unstarted.engine.todaySeconds(), Seconds(500));
    EXPECT_EQ(unstarted.engine.liveSeconds(), Seconds(0));
    EXPECT_EQ(unstarted.engine.status(), Status::active);
    EXPECT_EQ(world.mainLoop.timerCount(), 0u);
}

TEST_F(TimerEngineTest, AnActiveSecondIsBookedOnceToEveryCounter) {
    world.putAppInFront("xterm");
    auto& engine = start();
    tick();
    EXPECT_EQ(engine.liveSeconds(), Seconds(1));
    EXPECT_EQ(engine.todaySeconds(), Seconds(1));
    EXPECT_EQ(engine.status(), Status::active);
    EXPECT_EQ(stored(today), Seconds(1));
    EXPECT_THAT(apps(today), ElementsAre(AppSeconds{AppId("xterm"), Seconds(1)}));
    EXPECT_THAT(hour("2026-01-15 09"), ElementsAre(AppSeconds{AppId("xterm"), Seconds(1)}));
    EXPECT_THAT(bucket("2026-01-15 09:00"), ElementsAre(AppSeconds{AppId("xterm"), Seconds(1)}));
}

TEST_F(TimerEngineTest, HoursAndBucketsAreNamedAfterTheMoment) {
    world.putAppInFront("xterm");
    setTimeOfDay(9h + 59min + 57s);
    start();
    tick(5);
    EXPECT_EQ(fixture->hours.seconds(HourKey("2026-01-15 09")), Seconds(2));
    EXPECT_EQ(fixture->hours.seconds(HourKey("2026-01-15 10")), Seconds(3));
    EXPECT_THAT(bucket("2026-01-15 09:50"), ElementsAre(AppSeconds{AppId("xterm"), Seconds(2)}));
    EXPECT_THAT(bucket("2026-01-15 10:00"), ElementsAre(AppSeconds{AppId("xterm"), Seconds(3)}));
}

TEST_F(TimerEngineTest, EachStoreLooksAtTheApplicationInFrontByItself) {
    struct Restless final : platform::FrontmostApplication {
        int looks = 0;
        [[nodiscard]] std::optional<AppId> current() override {
            return AppId("app" + std::to_string(looks++));
        }
    } frontmost;
    Settings settings(world.preferences);
    const DayRule dayRule(world.clock, settings);
    const ClockKeys keys(world.clock, settings, dayRule);
    const IdleMonitor idleMonitor(world.inputActivity);
    DailyStore daily(world.files, world.log, dayRule);
    AppUsageStore appsStore(world.files, world.log, frontmost);
    HourlyStore hours(world.files, world.log, frontmost);
    MinuteStore minutes(world.files, world.log, frontmost);
    const auto disk = world.queues.makeQueue("record");
    TimerEngine engine(world.clock, world.mainLoop, settings, idleMonitor, keys,
                       {daily, appsStore, hours, minutes}, *disk, {});
    engine.start();
    tick();
    EXPECT_EQ(frontmost.looks, 3);
    EXPECT_THAT(appsStore.aggregate(std::vector{today}), ElementsAre(AppSeconds{AppId("app0"), Seconds(1)}));
    EXPECT_THAT(hours.entries(HourKey("2026-01-15 09")), ElementsAre(AppSeconds{AppId("app1"), Seconds(1)}));
    EXPECT_THAT(minutes.entries(BucketKey("2026-01-15 09:00")),
                ElementsAre(AppSeconds{AppId("app2"), Seconds(1)}));
}

TEST_F(TimerEngineTest, MidnightDuringASlowFlushIsSeenBeforeTheTickIsOver) {
    struct SlowDisk final : ProjectTimeListener {
        platform::FakeClock& clock;
        explicit SlowDisk(platform::FakeClock& theClock) : clock(theClock) {}
        void bookSecond(const DayKey&) override {}
        void flushOn(JobQueue&) override { clock.setNow(sys_days(2026y / 1 / 16)); }
    } disk(world.clock);
    setTimeOfDay(24h - 31s);
    auto& engine = start({nullptr, nullptr, &disk});
    tick(29);
    EXPECT_EQ(engine.todaySeconds(), Seconds(29));
    tick();
    EXPECT_EQ(engine.todaySeconds(), Seconds(0));
    EXPECT_EQ(stored(today), Seconds(30));
}

TEST_F(TimerEngineTest, TheListenersAreToldInTheOrderOfTheTick) {
    Listeners listeners;
    start(listeners.all());
    tick(2);
    EXPECT_THAT(listeners.calls, ElementsAre("work", "active 1", "project 2026-01-15", "work", "active 2",
                                             "project 2026-01-15"));
}

TEST_F(TimerEngineTest, TheDaysTotalIsBookedBeforeTheListenersAreTold) {
    struct Looking final : BreakListener {
        TimerEngineTest& test;
        std::vector<std::int64_t> seen;
        explicit Looking(TimerEngineTest& owner) : test(owner) {}
        void userWentIdle() override {}
        void tickActiveSecond(Seconds) override {
            seen.push_back(test.stored(today).count());
            seen.push_back(test.apps(today).front().seconds.count());
        }
    } looking(*this);
    world.putAppInFront("xterm");
    start({nullptr, &looking, nullptr});
    tick(2);
    EXPECT_THAT(looking.seen, ElementsAre(1, 1, 2, 2));
}

TEST_F(TimerEngineTest, AtMidnightTheTickBooksToTheNewDay) {
    setTimeOfDay(23h + 59min + 58s);
    auto& engine = start();
    tick();
    EXPECT_EQ(stored(today), Seconds(1));
    const auto writes = world.files.writes().size();
    tick();
    EXPECT_EQ(engine.todaySeconds(), Seconds(1));
    EXPECT_EQ(engine.liveSeconds(), Seconds(1));
    EXPECT_EQ(stored(today), Seconds(1));
    EXPECT_EQ(stored(tomorrow), Seconds(1));
    EXPECT_THAT(writtenSince(writes), ElementsAre(world.todayJson));
    EXPECT_EQ(onDisk(world.todayJson), "{\n  \"2026-01-15\" : 1\n}");
}

TEST_F(TimerEngineTest, ANewDayThatAlreadyHasTimeContinuesFromIt) {
    world.files.put(world.todayJson, R"({"2026-01-16":100})");
    setTimeOfDay(23h + 59min + 59s);
    auto& engine = start();
    tick();
    EXPECT_EQ(engine.todaySeconds(), Seconds(101));
    EXPECT_EQ(engine.liveSeconds(), Seconds(1));
}

TEST_F(TimerEngineTest, WhatIsSetUnderTheNewDaysKeyInTheGapBecomesItsStart) {
    world.files.put(world.todayJson, R"({"2026-01-15":5000})");
    setTimeOfDay(23h + 59min + 58s + 500ms);
    auto& engine = start();
    tick();
    world.clock.advance(600ms);  // past the boundary, the engine's next tick still to come
    fixture->daily.set(engine.todaySeconds(), fixture->daily.today());
    EXPECT_EQ(stored(tomorrow), Seconds(5001));
    world.mainLoop.runFor(400ms);
    EXPECT_EQ(engine.todaySeconds(), Seconds(5002));
    EXPECT_EQ(engine.liveSeconds(), Seconds(1));
    EXPECT_EQ(stored(today), Seconds(5001));
}

TEST_F(TimerEngineTest, AChangeOfDayStartIsFoundByTheNextTickBackwardAndForward) {
    world.files.put(world.todayJson, R"({"2026-01-14":300,"2026-01-15":20})");
    setTimeOfDay(2h);
    auto& engine = start();
    tick(5);
    EXPECT_EQ(engine.todaySeconds(), Seconds(25));
    fixture->settings.setDayStartHour(4);
    EXPECT_EQ(engine.todaySeconds(), Seconds(25));
    tick();
    EXPECT_EQ(engine.todaySeconds(), Seconds(301));
    EXPECT_EQ(engine.liveSeconds(), Seconds(1));
    EXPECT_EQ(stored(today), Seconds(25));
    fixture->settings.setDayStartHour(0);
    tick();
    EXPECT_EQ(engine.todaySeconds(), Seconds(26));
    EXPECT_EQ(stored(yesterday), Seconds(301));
}

TEST_F(TimerEngineTest, AChangeOfDayStartThatKeepsTheKeyChangesNothing) {
    auto& engine = start();
    tick(3);
    const auto writes = world.files.writes().size();
    fixture->settings.setDayStartHour(4);
    tick();
    EXPECT_EQ(engine.liveSeconds(), Seconds(4));
    EXPECT_THAT(writtenSince(writes), IsEmpty());
}

TEST_F(TimerEngineTest, ADayChangeWhileTheUserIsIdleReloadsAndBooksNothing) {
    setTimeOfDay(23h + 59min + 57s);
    auto& engine = start();
    tick();
    world.inputActivity.set(1000);
    tick(3);
    EXPECT_EQ(engine.todaySeconds(), Seconds(0));
    EXPECT_EQ(engine.liveSeconds(), Seconds(0));
    EXPECT_EQ(engine.status(), Status::idle);
    EXPECT_EQ(stored(today), Seconds(1));
    EXPECT_EQ(stored(tomorrow), Seconds(0));
    world.inputActivity.set(0);
    tick();
    EXPECT_EQ(engine.liveSeconds(), Seconds(1));
    EXPECT_EQ(engine.todaySeconds(), Seconds(1));
}

TEST_F(TimerEngineTest, ExactlyAtTheThresholdTheTickIsIdle) {
    auto& engine = start();
    world.inputActivity.set(299.999);
    tick();
    EXPECT_EQ(engine.status(), Status::active);
    world.inputActivity.set(300.0);
    tick();
    EXPECT_EQ(engine.status(), Status::idle);
    EXPECT_EQ(engine.todaySeconds(), Seconds(1));
}

TEST_F(TimerEngineTest, AChangeOfThresholdTakesEffectOnTheNextTick) {
    auto& engine = start();
    world.inputActivity.set(100);
    tick();
    EXPECT_EQ(engine.todaySeconds(), Seconds(1));
    fixture->settings.setIdleThresholdSeconds(60);
    tick();
    EXPECT_EQ(engine.todaySeconds(), Seconds(1));
    EXPECT_EQ(engine.status(), Status::idle);
}

TEST_F(TimerEngineTest, WithoutASourceOfIdlenessNothingIsBooked) {
    world.inputActivity.set(std::nullopt);
    auto& engine = start();
    tick(3);
    EXPECT_EQ(engine.status(), Status::idle);
    EXPECT_EQ(engine.todaySeconds(), Seconds(0));
}

TEST_F(TimerEngineTest, EveryIdleTickTellsTheBreakReminderAndNobodyElse) {
    Listeners listeners;
    start(listeners.all());
    world.inputActivity.set(1000);
    tick(3);
    EXPECT_THAT(listeners.calls, ElementsAre("idle", "idle", "idle"));
}

TEST_F(TimerEngineTest, ASessionEndsAtTheFirstActiveTickAfterAnIdleOne) {
    auto& engine = start();
    tick(5);
    world.inputActivity.set(1000);
    tick(2);
    EXPECT_EQ(engine.liveSeconds(), Seconds(5));
    world.inputActivity.set(0);
    tick();
    EXPECT_EQ(engine.liveSeconds(), Seconds(1));
    EXPECT_EQ(engine.todaySeconds(), Seconds(6));
}

TEST_F(TimerEngineTest, ResetTodayRestartsTheClockAndLeavesTheApplications) {
    world.files.put(world.todayJson, R"({"2026-01-15":10000})");
    world.files.put(world.appsJson, R"({"2026-01-15":{"xterm":9000}})");
    world.files.put(world.hoursJson, R"({"2026-01-15 09":{"xterm":9000}})");
    world.files.put(world.minutesJson, R"({"2026-01-15 09:00":{"xterm":9000}})");
    world.putAppInFront("xterm");
    auto& engine = start();
    const auto writes = world.files.writes().size();
    engine.resetToday();
    EXPECT_EQ(engine.todaySeconds(), Seconds(0));
    EXPECT_EQ(engine.liveSeconds(), Seconds(0));
    EXPECT_THAT(writtenSince(writes), ElementsAre(world.todayJson));
    EXPECT_EQ(onDisk(world.todayJson), "{\n  \"2026-01-15\" : 0\n}");
    tick();
    EXPECT_EQ(engine.todaySeconds(), Seconds(1));
    EXPECT_THAT(apps(today), ElementsAre(AppSeconds{AppId("xterm"), Seconds(9001)}));
    EXPECT_THAT(hour("2026-01-15 09"), ElementsAre(AppSeconds{AppId("xterm"), Seconds(9001)}));
    EXPECT_THAT(bucket("2026-01-15 09:00"), ElementsAre(AppSeconds{AppId("xterm"), Seconds(9001)}));
}

TEST_F(TimerEngineTest, ResetTodayLeavesTheFlushCadenceAsItIs) {
    auto& engine = start();
    tick(29);
    engine.resetToday();
    const auto writes = world.files.writes().size();
    tick();
    EXPECT_THAT(writtenSince(writes), ElementsAreArray(allFiles));
}

TEST_F(TimerEngineTest, StartCalledTwiceCreatesOneTimerOnly) {
    auto& engine = start();
    engine.start();
    EXPECT_EQ(world.mainLoop.timerCount(), 1u);
    tick();
    EXPECT_EQ(engine.todaySeconds(), Seconds(1));
}

TEST_F(TimerEngineTest, StartCalledAgainDoesNotShiftTheNextTick) {
    auto& engine = start();
    world.mainLoop.runFor(500ms);
    engine.start();
    world.mainLoop.runFor(500ms);
    EXPECT_EQ(engine.todaySeconds(), Seconds(1));
}

TEST_F(TimerEngineTest, StoppedAndStartedAgainItTicksAgain) {
    auto& engine = start();
    engine.stop();
    EXPECT_EQ(world.mainLoop.timerCount(), 0u);
    engine.start();
    tick();
    EXPECT_EQ(engine.todaySeconds(), Seconds(1));
}

TEST_F(TimerEngineTest, APlayedSecondGoesToTheGamesAndTheProjectStillBooks) {
    Listeners listeners;
    listeners.playing = true;
    world.putAppInFront("xterm");
    start(listeners.all());
    tick();
    const AppSeconds aSecond{AppId("com.brightlooms.fathom.games"), Seconds(1)};
    EXPECT_THAT(apps(today), ElementsAre(aSecond));
    EXPECT_THAT(hour("2026-01-15 09"), ElementsAre(aSecond));
    EXPECT_THAT(bucket("2026-01-15 09:00"), ElementsAre(aSecond));
    EXPECT_THAT(listeners.calls, ElementsAre("work", "active 1", "project 2026-01-15"));
}

TEST_F(TimerEngineTest, APlayedSecondIsBookedWithTheOwnWindowInFront) {
    Listeners listeners;
    listeners.playing = true;
    world.putAppInFront("com.brightlooms.tidewatch");
    start(listeners.all());
    tick();
    EXPECT_THAT(apps(today), ElementsAre(AppSeconds{AppId("com.brightlooms.fathom.games"), Seconds(1)}));
}

TEST_F(TimerEngineTest, WithTheOwnWindowInFrontTheDayGrowsAndTheApplicationsDoNot) {
    world.putAppInFront("com.brightlooms.tidewatch");
    auto& engine = start();
    tick(2);
    EXPECT_EQ(engine.todaySeconds(), Seconds(2));
    EXPECT_EQ(stored(today), Seconds(2));
    EXPECT_THAT(apps(today), IsEmpty());
    EXPECT_THAT(hour("2026-01-15 09"), IsEmpty());
    EXPECT_THAT(bucket("2026-01-15 09:00"), IsEmpty());
}

TEST_F(TimerEngineTest, AnApplicationWithoutAnIdentifierLeavesItsSecondsInTheDayOnly) {
    world.putAppInFront("");
    start();
    tick(2);
    EXPECT_EQ(stored(today), Seconds(2));
    EXPECT_THAT(apps(today), IsEmpty());
}

TEST_F(TimerEngineTest, EveryThirtiethTickWritesTheStores) {
    world.putAppInFront("xterm");
    start();
    tick(29);
    EXPECT_THAT(world.files.writes(), IsEmpty());
    tick();
    EXPECT_THAT(world.files.writes(), ElementsAreArray(allFiles));
    EXPECT_EQ(onDisk(world.todayJson), "{\n  \"2026-01-15\" : 30\n}");
    tick(30);
    EXPECT_EQ(world.files.writes().size(), 2 * allFiles.size());
}

TEST_F(TimerEngineTest, IdleTicksCountForTheCadenceAndWriteThoughNothingChanged) {
    world.inputActivity.set(1000);
    Listeners listeners;
    start(listeners.all());
    tick(30);
    EXPECT_THAT(world.files.writes(), ElementsAreArray(allFiles));
    EXPECT_EQ(onDisk(world.todayJson), "{\n  \"2026-01-15\" : 0\n}");
}

TEST_F(TimerEngineTest, ThePeriodicFlushReachesTheProjectsAndTheSmallFilesButNotTheGameGate) {
    struct Gate final : GameGateListener {
        int flushes = 0;
        bool playingNow() const override { return false; }
        void tickWorkSecond() override {}
        void flush() override { ++flushes; }
    } gate;
    struct Projects final : ProjectTimeListener {
        int flushes = 0;
        void bookSecond(const DayKey&) override {}
        void flushOn(JobQueue&) override { ++flushes; }
    } projects;
    struct SmallFiles final : SmallFilesListener {
        int restores = 0;
        void restoreMissingOn(JobQueue&) override { ++restores; }
    } smallFiles;
    auto& engine = start({&gate, nullptr, &projects, &smallFiles});
    tick(29);
    EXPECT_EQ(smallFiles.restores, 0);
    tick(1);
    EXPECT_EQ(projects.flushes, 1);
    EXPECT_EQ(smallFiles.restores, 1);
    EXPECT_EQ(gate.flushes, 0);
    engine.stop();
    EXPECT_EQ(projects.flushes, 2);
    EXPECT_EQ(smallFiles.restores, 2);
    EXPECT_EQ(gate.flushes, 1);
}

TEST_F(TimerEngineTest, StopWritesTheDayAndTheStores) {
    world.putAppInFront("xterm");
    auto& engine = start();
    tick(3);
    engine.stop();
    EXPECT_THAT(world.files.writes(), ElementsAreArray(allFiles));
    EXPECT_EQ(onDisk(world.todayJson), "{\n  \"2026-01-15\" : 3\n}");
    EXPECT_EQ(onDisk(world.appsJson), "{\n  \"2026-01-15\" : {\n    \"xterm\" : 3\n  }\n}");
    EXPECT_EQ(onDisk(world.hoursJson), "{\n  \"2026-01-15 09\" : {\n    \"xterm\" : 3\n  }\n}");
    EXPECT_EQ(onDisk(world.minutesJson), "{\n  \"2026-01-15 09:00\" : {\n    \"xterm\" : 3\n  }\n}");
    tick(5);
    EXPECT_EQ(engine.todaySeconds(), Seconds(3));
}

TEST_F(TimerEngineTest, StopBetweenTheBoundaryAndTheTickWritesUnderTheEnginesDay) {
    setTimeOfDay(23h + 59min + 58s + 500ms);
    auto& engine = start();
    tick();
    world.clock.advance(600ms);
    engine.stop();
    EXPECT_EQ(onDisk(world.todayJson), "{\n  \"2026-01-15\" : 1\n}");
}

TEST_F(TimerEngineTest, ARestartContinuesTheDayWithANewSession) {
    world.putAppInFront("xterm");
    start();
    tick(5);
    fixture->engine.stop();
    auto& engine = start();
    EXPECT_EQ(engine.todaySeconds(), Seconds(5));
    EXPECT_EQ(engine.liveSeconds(), Seconds(0));
    tick();
    EXPECT_EQ(engine.todaySeconds(), Seconds(6));
    EXPECT_EQ(engine.liveSeconds(), Seconds(1));
    EXPECT_THAT(apps(today), ElementsAre(AppSeconds{AppId("xterm"), Seconds(6)}));
}

TEST_F(TimerEngineTest, ACrashCostsAtMostTheLast29Ticks) {
    start();
    tick(59);
    EXPECT_EQ(start().todaySeconds(), Seconds(30));
}

TEST_F(TimerEngineTest, ASleepIsNotCaughtUp) {
    auto& engine = start();
    tick(2);
    world.clock.suspend(3h);
    tick();
    EXPECT_EQ(engine.todaySeconds(), Seconds(3));
    EXPECT_EQ(engine.liveSeconds(), Seconds(3));
}

TEST_F(TimerEngineTest, ADayChangeDuringASleepIsFoundByTheFirstTick) {
    setTimeOfDay(23h);
    auto& engine = start();
    tick(2);
    world.clock.suspend(9h);
    tick();
    EXPECT_EQ(stored(today), Seconds(2));
    EXPECT_EQ(engine.todaySeconds(), Seconds(1));
}

TEST_F(TimerEngineTest, ABlockedThreadIsNotCaughtUp) {
    auto& engine = start();
    world.clock.advance(10min);
    world.mainLoop.run();
    EXPECT_EQ(engine.todaySeconds(), Seconds(1));
}

TEST_F(TimerEngineTest, AClockSetBackADayContinuesThatDay) {
    world.files.put(world.todayJson, R"({"2026-01-14":300})");
    auto& engine = start();
    tick(2);
    world.clock.setNow(world.clock.now() - 24h);
    tick();
    EXPECT_EQ(engine.todaySeconds(), Seconds(301));
    EXPECT_EQ(stored(today), Seconds(2));
    world.clock.setNow(world.clock.now() + 24h);
    tick();
    EXPECT_EQ(engine.todaySeconds(), Seconds(3));
}

TEST_F(TimerEngineTest, AClockSetForwardByYearsBooksOneSecondThere) {
    auto& engine = start();
    tick(2);
    world.clock.setNow(sys_days(2031y / 6 / 1) + 12h);
    tick();
    EXPECT_EQ(engine.todaySeconds(), Seconds(1));
    EXPECT_EQ(stored(DayKey("2031-06-01")), Seconds(1));
    EXPECT_EQ(stored(today), Seconds(2));
}

TEST_F(TimerEngineTest, AClockSetBackWithinTheDayChangesNothing) {
    auto& engine = start();
    tick(2);
    world.clock.setNow(world.clock.now() - 1h);
    tick();
    EXPECT_EQ(engine.todaySeconds(), Seconds(3));
    EXPECT_EQ(engine.liveSeconds(), Seconds(3));
}

TEST_F(TimerEngineTest, ItTicksWhileAMenuIsOpen) {
    auto& engine = start();
    world.mainLoop.setMenu(platform::FakeMainLoop::Menu::open);
    tick(3);
    EXPECT_EQ(engine.todaySeconds(), Seconds(3));
}

TEST_F(TimerEngineTest, ATickThatWasPostedDoesNothingOnceTheEngineIsGone) {
    start();
    world.mainLoop.post([this] { fixture.reset(); });
    tick();
    EXPECT_FALSE(fixture);
}

TEST_F(TimerEngineTest, AnnouncesEveryChangeOnceAndAfterIt) {
    auto& engine = start();
    std::vector<std::int64_t> seen;
    const auto listening = engine.changed.connect([&] { seen.push_back(engine.todaySeconds().count()); });
    tick(2);
    EXPECT_THAT(seen, ElementsAre(1, 2));
    engine.resetToday();
    EXPECT_THAT(seen, ElementsAre(1, 2, 0));
}

TEST_F(TimerEngineTest, AnnouncesTheTurnToIdleAndThenKeepsSilent) {
    auto& engine = start();
    tick();
    int announced = 0;
    const auto listening = engine.changed.connect([&] { ++announced; });
    world.inputActivity.set(1000);
    tick(5);
    EXPECT_EQ(announced, 1);
}

TEST_F(TimerEngineTest, ItCanBeEndedByWhoeverListensToIt) {
    start();
    const auto listening = fixture->engine.changed.connect([this] { fixture->engine.stop(); });
    tick(3);
    EXPECT_EQ(fixture->engine.todaySeconds(), Seconds(1));
}

using TimerEngineDeathTest = TimerEngineTest;

TEST_F(TimerEngineDeathTest, AnOverflowOfTheDayEndsTheProcess) {
    start();
    fixture->daily.set(Seconds(std::numeric_limits<std::int64_t>::max()), tomorrow);
    world.clock.setNow(sys_days(2026y / 1 / 16));
    EXPECT_DEATH(tick(), "overflow");
}

}  // namespace
}  // namespace tidewatch
