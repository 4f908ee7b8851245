#include "tests/core/timer_engine_fixture.h"

namespace tidewatch {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

using TimerEngineFlushTest = TimerEngineTest;

TEST_F(TimerEngineFlushTest, ResetTodayLeavesTheFlushCadenceAsItIs) {
    auto& engine = start();
    tick(29);
    engine.resetToday();
    const auto writes = world.files.writes().size();
    tick();
    EXPECT_THAT(writtenSince(writes), ElementsAreArray(allFiles));
}

TEST_F(TimerEngineFlushTest, EveryThirtiethTickWritesTheStores) {
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

TEST_F(TimerEngineFlushTest, IdleTicksCountForTheCadenceAndWriteThoughNothingChanged) {
    world.inputActivity.set(1000);
    Listeners listeners;
    start(listeners.all());
    tick(30);
    EXPECT_THAT(world.files.writes(), ElementsAreArray(allFiles));
    EXPECT_EQ(onDisk(world.todayJson), "{\n  \"2026-01-15\" : 0\n}");
}

TEST_F(TimerEngineFlushTest, ThePeriodicFlushReachesTheProjectsAndTheSmallFilesButNotTheGameGate) {
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

TEST_F(TimerEngineFlushTest, StopWritesTheDayAndTheStores) {
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

TEST_F(TimerEngineFlushTest, StopBetweenTheBoundaryAndTheTickWritesUnderTheEnginesDay) {
    setTimeOfDay(23h + 59min + 58s + 500ms);
    auto& engine = start();
    tick();
    world.clock.advance(600ms);
    engine.stop();
    EXPECT_EQ(onDisk(world.todayJson), "{\n  \"2026-01-15\" : 1\n}");
}

TEST_F(TimerEngineFlushTest, ARestartContinuesTheDayWithANewSession) {
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

TEST_F(TimerEngineFlushTest, ACrashCostsAtMostTheLast29Ticks) {
    start();
    tick(59);
    EXPECT_EQ(start().todaySeconds(), Seconds(30));
}

}  // namespace
}  // namespace tidewatch
