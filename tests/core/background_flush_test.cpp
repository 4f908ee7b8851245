// What is written in the background, and what need not be. The test decides when the queue runs its jobs.

#include <gmock/gmock.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/support/core_fixture.h"

namespace tidewatch {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

const DayKey today("2026-01-15");

struct BackgroundFlushTest : testing::Test {
    test::FakeWorld world;
    std::unique_ptr<JobQueue> queue = world.queues.makeQueue("record");
    AppUsageStore apps{world.files, world.log, world.frontmost};

    void book(int seconds) {
        for (int i = 0; i < seconds; ++i) apps.incrementApp(AppId("xterm"), today);
    }
    [[nodiscard]] std::optional<std::string> onDisk() const { return world.files.content(world.appsJson); }
    [[nodiscard]] static std::string withSeconds(int seconds) {
        return "{\n  \"2026-01-15\" : {\n    \"xterm\" : " + std::to_string(seconds) + "\n  }\n}";
    }
};

TEST_F(BackgroundFlushTest, WritesTheStateAtTheTimeOfTheCall) {
    world.queues.hold();
    book(3);
    apps.flushOn(*queue);
    book(4);
    EXPECT_EQ(onDisk(), std::nullopt);
    queue->finish();
    EXPECT_EQ(onDisk(), withSeconds(3));
}

TEST_F(BackgroundFlushTest, OfSeveralPendingStatesOnlyTheNewestIsWritten) {
    world.queues.hold();
    for (int i = 0; i < 3; ++i) {
        book(1);
        apps.flushOn(*queue);
    }
    queue->finish();
    EXPECT_EQ(onDisk(), withSeconds(3));
    EXPECT_EQ(world.files.writeCount(), 1);
}

TEST_F(BackgroundFlushTest, AnOlderStateIsNotWrittenAfterANewerOne) {
    world.queues.hold();
    book(1);
    apps.flushOn(*queue);
    book(1);
    apps.flush();
    EXPECT_EQ(onDisk(), withSeconds(2));
    queue->finish();
    EXPECT_EQ(onDisk(), withSeconds(2));
    EXPECT_EQ(world.files.writeCount(), 1);
}

TEST_F(BackgroundFlushTest, AnOlderStateIsWrittenIfTheNewerOneCouldNotBe) {
    world.queues.hold();
    book(1);
    apps.flushOn(*queue);
    book(1);
    world.files.failWrite(1);
    world.log.expectWarning("Tidewatch: failed to flush app usage store: write: Input/output error");
    apps.flush();
    queue->finish();
    EXPECT_EQ(onDisk(), withSeconds(1));
}

TEST_F(BackgroundFlushTest, SkipsTheWriteWithoutAChange) {
    book(1);
    apps.flush();
    for (int i = 0; i < 3; ++i) apps.flushOn(*queue);
    EXPECT_EQ(world.files.writeCount(), 1);
    book(1);
    apps.flushOn(*queue);
    EXPECT_EQ(world.files.writeCount(), 2);
}

TEST_F(BackgroundFlushTest, TheFirstFlushWritesWhatWasReadInTheLayoutOfCounterFiles) {
    world.files.put(world.appsJson, R"({"2026-01-15":{"xterm":7}})");
    AppUsageStore next(world.files, world.log, world.frontmost);
    next.flushOn(*queue);
    EXPECT_EQ(onDisk(), withSeconds(7));
}

TEST_F(BackgroundFlushTest, SettingTheSameTotalIsNoChange) {
    const Settings settings(world.preferences);
    const DayRule dayRule(world.clock, settings);
    DailyStore daily(world.files, world.log, dayRule);
    daily.set(Seconds(0), today);
    daily.flushOn(*queue);
    EXPECT_EQ(world.files.writeCount(), 1) << "a new day is one, also with nothing booked";
    daily.set(Seconds(0), today);
    daily.flushOn(*queue);
    EXPECT_EQ(world.files.writeCount(), 1);
    daily.set(Seconds(1), today);
    daily.flushOn(*queue);
    EXPECT_EQ(world.files.writeCount(), 2);
}

TEST_F(BackgroundFlushTest, AReplacedFileIsWrittenAgain) {
    book(5);
    apps.flush();
    const std::vector<void (*)(test::FakeWorld&)> mishaps{
        [](test::FakeWorld& w) { w.files.removeDirectory("/home/user/.tidewatch"); },
        [](test::FakeWorld& w) { w.files.put(w.appsJson, withSeconds(9)); },
        [](test::FakeWorld& w) { w.files.touch(w.appsJson); },
        [](test::FakeWorld& w) { w.files.truncate(w.appsJson, 3); },
    };
    for (std::size_t i = 0; i < mishaps.size(); ++i) {
        const auto before = world.files.writeCount();
        mishaps[i](world);
        apps.flushOn(*queue);
        EXPECT_EQ(onDisk(), withSeconds(5)) << i;
        EXPECT_EQ(world.files.writeCount(), before + 1) << i;
    }
}

TEST_F(BackgroundFlushTest, AFailedWriteIsRetriedWithoutAChange) {
    book(5);
    world.files.failWrite(1);
    world.log.expectWarning("Tidewatch: failed to flush app usage store: write: Input/output error");
    apps.flushOn(*queue);
    EXPECT_EQ(onDisk(), std::nullopt);
    apps.flushOn(*queue);
    EXPECT_EQ(onDisk(), withSeconds(5));
}

TEST_F(BackgroundFlushTest, AnotherProcessesFileIsReplacedWithoutAChange) {
    book(5);
    apps.flush();
    world.files.setRecordLock(platform::RecordLock::heldByAnother);
    apps.flushOn(*queue);
    world.files.put(world.appsJson, "theirs");
    world.files.setRecordLock(platform::RecordLock::held);
    apps.flushOn(*queue);
    EXPECT_EQ(onDisk(), withSeconds(5));
    EXPECT_EQ(world.files.content(world.appsJson + ".other-2026-01-15"), "theirs");
}

// Ticks while the disk stalls.
struct StalledTickTest : testing::Test {
    test::FakeWorld world;
    std::optional<test::CoreFixture> fixture;
    const std::vector<std::string> allFiles{world.todayJson, world.appsJson, world.hoursJson,
                                            world.minutesJson};

    StalledTickTest() {
        world.putAppInFront("xterm");
        fixture.emplace(world);
        fixture->engine.start();
        world.queues.hold();
    }
    void tick(int times) { world.mainLoop.runFor(std::chrono::seconds(times)); }
    void expectOnDisk(int seconds) const {
        EXPECT_EQ(world.files.content(world.todayJson),
                  "{\n  \"2026-01-15\" : " + std::to_string(seconds) + "\n}");
        EXPECT_EQ(world.files.content(world.minutesJson),
                  "{\n  \"2026-01-15 09:00\" : {\n    \"xterm\" : " + std::to_string(seconds) + "\n  }\n}");
    }
};

TEST_F(StalledTickTest, NoTickWaitsAndNoSecondIsLost) {
    tick(95);
    EXPECT_EQ(fixture->engine.todaySeconds(), Seconds(95));
    EXPECT_THAT(world.files.writes(), IsEmpty());
    fixture->disk->finish();
    expectOnDisk(90);
    EXPECT_THAT(world.files.writes(), ElementsAreArray(allFiles)) << "the newest of three, in the order told";
}

TEST_F(StalledTickTest, TheEndWritesTheNewestStateOnce) {
    tick(35);
    fixture->engine.stop();
    expectOnDisk(35);
    EXPECT_THAT(world.files.writes(), ElementsAreArray(allFiles));
}

TEST_F(StalledTickTest, AResetIsOnTheDiskWhenItReturns) {
    tick(35);
    fixture->engine.resetToday();
    EXPECT_EQ(world.files.content(world.todayJson), "{\n  \"2026-01-15\" : 0\n}");
    fixture->disk->finish();
    EXPECT_EQ(world.files.content(world.todayJson), "{\n  \"2026-01-15\" : 0\n}");
}

TEST_F(StalledTickTest, TheDayThatEndsIsHandedOverWithItsOwnTotal) {
    world.clock.setNow(std::chrono::sys_days(std::chrono::January / 15 / 2026) + std::chrono::hours(24) -
                       std::chrono::seconds(3));
    tick(4);
    EXPECT_THAT(world.files.writes(), IsEmpty());
    fixture->disk->finish();
    EXPECT_THAT(world.files.writes(), ElementsAre(world.todayJson));
    EXPECT_EQ(world.files.content(world.todayJson), "{\n  \"2026-01-15\" : 2\n}");
}

TEST_F(StalledTickTest, PendingStatesAreWrittenBeforeTheStoresAreDestroyed) {
    tick(30);
    fixture.reset();
    expectOnDisk(30);
}

}  // namespace
}  // namespace tidewatch
