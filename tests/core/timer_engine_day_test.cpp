#include "tests/core/timer_engine_fixture.h"

namespace tidewatch {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

using Status = TimerEngine::Status;

using TimerEngineDayTest = TimerEngineTest;

TEST_F(TimerEngineDayTest, MidnightDuringASlowFlushIsSeenBeforeTheTickIsOver) {
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

TEST_F(TimerEngineDayTest, AtMidnightTheTickBooksToTheNewDay) {
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

TEST_F(TimerEngineDayTest, ANewDayThatAlreadyHasTimeContinuesFromIt) {
    world.files.put(world.todayJson, R"({"2026-01-16":100})");
    setTimeOfDay(23h + 59min + 59s);
    auto& engine = start();
    tick();
    EXPECT_EQ(engine.todaySeconds(), Seconds(101));
    EXPECT_EQ(engine.liveSeconds(), Seconds(1));
}

TEST_F(TimerEngineDayTest, WhatIsSetUnderTheNewDaysKeyInTheGapBecomesItsStart) {
    world.files.put(world.todayJson, R"({"2026-01-15":5000})");
    setTimeOfDay(23h + 59min + 58s + 500ms);
    auto& engine = start();
    tick();
    world.clock.advance(600ms);  // past the boundary, before the engine's next tick
    fixture->days.set(engine.todaySeconds(), fixture->days.today());
    EXPECT_EQ(stored(tomorrow), Seconds(5001));
    world.mainLoop.runFor(400ms);
    EXPECT_EQ(engine.todaySeconds(), Seconds(5002));
    EXPECT_EQ(engine.liveSeconds(), Seconds(1));
    EXPECT_EQ(stored(today), Seconds(5001));
}

TEST_F(TimerEngineDayTest, AChangeOfDayStartIsFoundByTheNextTickBackwardAndForward) {
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

TEST_F(TimerEngineDayTest, AChangeOfDayStartThatKeepsTheKeyChangesNothing) {
    auto& engine = start();
    tick(3);
    const auto writes = world.files.writes().size();
    fixture->settings.setDayStartHour(4);
    tick();
    EXPECT_EQ(engine.liveSeconds(), Seconds(4));
    EXPECT_THAT(writtenSince(writes), IsEmpty());
}

TEST_F(TimerEngineDayTest, ADayChangeWhileTheUserIsIdleReloadsAndBooksNothing) {
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

TEST_F(TimerEngineDayTest, ADayChangeDuringASleepIsFoundByTheFirstTick) {
    setTimeOfDay(23h);
    auto& engine = start();
    tick(2);
    world.clock.suspend(9h);
    tick();
    EXPECT_EQ(stored(today), Seconds(2));
    EXPECT_EQ(engine.todaySeconds(), Seconds(1));
}

TEST_F(TimerEngineDayTest, AClockSetBackADayContinuesThatDay) {
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

TEST_F(TimerEngineDayTest, AClockSetForwardByYearsBooksOneSecondThere) {
    auto& engine = start();
    tick(2);
    world.clock.setNow(sys_days(2031y / 6 / 1) + 12h);
    tick();
    EXPECT_EQ(engine.todaySeconds(), Seconds(1));
    EXPECT_EQ(stored(DayKey("2031-06-01")), Seconds(1));
    EXPECT_EQ(stored(today), Seconds(2));
}

TEST_F(TimerEngineDayTest, AClockSetBackWithinTheDayChangesNothing) {
    auto& engine = start();
    tick(2);
    world.clock.setNow(world.clock.now() - 1h);
    tick();
    EXPECT_EQ(engine.todaySeconds(), Seconds(3));
    EXPECT_EQ(engine.liveSeconds(), Seconds(3));
}

}  // namespace
}  // namespace tidewatch
