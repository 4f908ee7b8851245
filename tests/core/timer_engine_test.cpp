#include "tests/core/timer_engine_fixture.h"

#include <limits>

namespace tidewatch {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

using Status = TimerEngine::Status;

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
    Counting counting({.clock = world.clock,
                       .files = world.files,
                       .log = world.log,
                       .preferences = world.preferences,
                       .inputActivity = world.inputActivity,
                       .frontmost = frontmost});
    const auto disk = world.queues.makeQueue("record");
    TimerEngine engine(world.clock, world.mainLoop, counting.settings, counting.idleMonitor, counting.keys,
                       counting.stores(), *disk, {});
    engine.start();
    tick();
    EXPECT_EQ(frontmost.looks, 3);
    EXPECT_THAT(counting.apps.aggregate(std::vector{today}),
                ElementsAre(AppSeconds{AppId("app0"), Seconds(1)}));
    EXPECT_THAT(counting.hours.entries(HourKey("2026-01-15 09")),
                ElementsAre(AppSeconds{AppId("app1"), Seconds(1)}));
    EXPECT_THAT(counting.minutes.entries(BucketKey("2026-01-15 09:00")),
                ElementsAre(AppSeconds{AppId("app2"), Seconds(1)}));
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

TEST_F(TimerEngineTest, ASleepIsNotCaughtUp) {
    auto& engine = start();
    tick(2);
    world.clock.suspend(3h);
    tick();
    EXPECT_EQ(engine.todaySeconds(), Seconds(3));
    EXPECT_EQ(engine.liveSeconds(), Seconds(3));
}

TEST_F(TimerEngineTest, ABlockedThreadIsNotCaughtUp) {
    auto& engine = start();
    world.clock.advance(10min);
    world.mainLoop.run();
    EXPECT_EQ(engine.todaySeconds(), Seconds(1));
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
    fixture->days.set(Seconds(std::numeric_limits<std::int64_t>::max()), tomorrow);
    world.clock.setNow(sys_days(2026y / 1 / 16));
    EXPECT_DEATH(tick(), "overflow");
}

}  // namespace
}  // namespace tidewatch
