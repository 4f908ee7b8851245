// The stores and the tick with failing disks and damaged files.

#include <gmock/gmock.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/support/core_fixture.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;
using platform::MemoryFileSystem;
using testing::ElementsAre;
using testing::IsEmpty;

const DayKey today("2026-01-15");
constexpr auto goodToday = "{\n  \"2026-01-14\" : 20013,\n  \"2026-01-15\" : 1840\n}";
constexpr auto goodApps =
    "{\n  \"2026-01-14\" : {\n    \"org\\/caf\u00E9\" : 20013\n  },\n"
    "  \"2026-01-15\" : {\n    \"firefox\" : 1800,\n    \"xterm\" : 40\n  }\n}";
constexpr auto goodHours =
    "{\n  \"2026-01-14 23\" : {\n    \"org\\/caf\u00E9\" : 3600\n  },\n"
    "  \"2026-01-15 09\" : {\n    \"firefox\" : 1800,\n    \"xterm\" : 40\n  }\n}";
constexpr auto goodMinutes =
    "{\n  \"2026-01-14 23:50\" : {\n    \"org\\/caf\u00E9\" : 600\n  },\n"
    "  \"2026-01-15 09:00\" : {\n    \"firefox\" : 180,\n    \"xterm\" : 40\n  }\n}";
constexpr auto dailyFailed = "Tidewatch: failed to flush daily store: ";
constexpr auto appsFailed = "Tidewatch: failed to flush app usage store: ";
constexpr auto hoursFailed = "Tidewatch: failed to flush hourly store: ";
constexpr auto minutesFailed = "Tidewatch: failed to flush minute store: ";

struct FaultTest : testing::Test {
    test::FakeWorld world;
    std::optional<test::CoreFixture> fixture;

    void start() {
        world.putAppInFront("xterm");
        fixture.emplace(world);
        fixture->engine.start();
    }
    void tick(int times) { world.mainLoop.runFor(std::chrono::seconds(times)); }

    void expectOnDisk(int daySeconds, int appSeconds) const {
        EXPECT_EQ(world.files.content(world.todayJson),
                  "{\n  \"2026-01-15\" : " + std::to_string(daySeconds) + "\n}");
        EXPECT_EQ(world.files.content(world.appsJson),
                  "{\n  \"2026-01-15\" : {\n    \"xterm\" : " + std::to_string(appSeconds) + "\n  }\n}");
    }
};

TEST_F(FaultTest, AFailureAtTheFirstWriteOfAFlushLosesNothing) {
    start();
    world.files.failWrite(1);
    world.log.expectWarning(dailyFailed);
    tick(30);
    EXPECT_EQ(world.files.content(world.todayJson), std::nullopt);
    tick(30);
    expectOnDisk(60, 60);
}

TEST_F(FaultTest, AFailureAtTheSecondWriteOfAFlushLosesNothing) {
    start();
    world.files.failWrite(2);
    world.log.expectWarning(appsFailed);
    tick(30);
    EXPECT_EQ(world.files.content(world.appsJson), std::nullopt);
    tick(30);
    expectOnDisk(60, 60);
}

TEST_F(FaultTest, AFailureAtTheThirdWriteOfAFlushLosesNothing) {
    start();
    world.files.failWrite(3);
    world.log.expectWarning(hoursFailed);
    tick(30);
    EXPECT_EQ(world.files.content(world.hoursJson), std::nullopt);
    tick(30);
    EXPECT_EQ(world.files.content(world.hoursJson), "{\n  \"2026-01-15 09\" : {\n    \"xterm\" : 60\n  }\n}");
}

TEST_F(FaultTest, AFailureAtTheFourthWriteOfAFlushLosesNothing) {
    start();
    world.files.failWrite(4);
    world.log.expectWarning(minutesFailed);
    tick(30);
    EXPECT_EQ(world.files.content(world.minutesJson), std::nullopt);
    tick(30);
    EXPECT_EQ(world.files.content(world.minutesJson),
              "{\n  \"2026-01-15 09:00\" : {\n    \"xterm\" : 60\n  }\n}");
}

TEST_F(FaultTest, AFailureKeepsWhatAnEarlierFlushWrote) {
    start();
    tick(30);
    world.files.failWrite(1);
    world.log.expectWarning(dailyFailed);
    tick(30);
    expectOnDisk(30, 60);
}

TEST_F(FaultTest, AFailureAtTheDayChangeIsRetriedByTheNextFlush) {
    world.clock.setNow(std::chrono::sys_days(std::chrono::January / 14 / 2026) + 23h + 59min + 50s);
    start();
    tick(9);
    world.files.failWrite(1);
    world.log.expectWarning(dailyFailed);
    tick(2);
    fixture->engine.stop();
    EXPECT_EQ(world.files.content(world.todayJson), "{\n  \"2026-01-14\" : 9,\n  \"2026-01-15\" : 2\n}");
}

TEST_F(FaultTest, AFailureAtTheEndIsLogged) {
    start();
    tick(3);
    world.files.failWrite(1);
    world.log.expectWarning(dailyFailed);
    fixture->engine.stop();
    EXPECT_EQ(world.files.content(world.todayJson), std::nullopt);
}

TEST_F(FaultTest, AFullDiskCostsALogLineAFlushAndMemoryKeepsTheTruth) {
    start();
    world.files.setDisk(MemoryFileSystem::Disk::full);
    for (int flush = 0; flush < 3; ++flush) {
        world.log.expectWarning(std::string(dailyFailed) + "write: No space left on device");
        world.log.expectWarning(std::string(appsFailed) + "write: No space left on device");
        world.log.expectWarning(std::string(hoursFailed) + "write: No space left on device");
        world.log.expectWarning(std::string(minutesFailed) + "write: No space left on device");
    }
    tick(90);
    EXPECT_EQ(fixture->engine.todaySeconds(), Seconds(90));
    world.files.setDisk(MemoryFileSystem::Disk::roomy);
    tick(30);
    expectOnDisk(120, 120);
}

TEST_F(FaultTest, ADirectoryThatCannotBeMadeShowsUpOnlyInTheFlushes) {
    world.files.makeUnmakeable("/home/user/.tidewatch");
    start();
    EXPECT_THAT(world.log.warnings(), IsEmpty());
    world.log.expectWarning(dailyFailed);
    world.log.expectWarning(appsFailed);
    world.log.expectWarning(hoursFailed);
    world.log.expectWarning(minutesFailed);
    tick(30);
    EXPECT_EQ(fixture->engine.todaySeconds(), Seconds(30));
    EXPECT_THAT(fixture->apps.aggregate(std::vector{today}),
                ElementsAre(AppSeconds{AppId("xterm"), Seconds(30)}));
}

TEST_F(FaultTest, EveryTruncationOfTodayIsReadAsNoDataAndReplaced) {
    for (std::size_t length = 0; length < std::string(goodToday).size(); ++length) {
        world.files.put(world.todayJson, goodToday);
        world.files.truncate(world.todayJson, length);
        start();
        EXPECT_THAT(fixture->days.allDays(), IsEmpty()) << length;
        fixture->engine.stop();
        EXPECT_EQ(world.files.content(world.todayJson), "{\n  \"2026-01-15\" : 0\n}") << length;
    }
}

TEST_F(FaultTest, EveryTruncationOfAppsIsReadAsNoDataAndReplaced) {
    for (std::size_t length = 0; length < std::string(goodApps).size(); ++length) {
        world.files.put(world.appsJson, goodApps);
        world.files.truncate(world.appsJson, length);
        start();
        EXPECT_THAT(fixture->apps.allDayKeys(), IsEmpty()) << length;
        fixture->engine.stop();
        EXPECT_EQ(world.files.content(world.appsJson), "{\n\n}") << length;
    }
}

TEST_F(FaultTest, EveryTruncationOfHoursIsReadAsNoDataAndReplaced) {
    for (std::size_t length = 0; length < std::string(goodHours).size(); ++length) {
        world.files.put(world.hoursJson, goodHours);
        world.files.truncate(world.hoursJson, length);
        start();
        EXPECT_EQ(fixture->hours.snapshot().keyCount(), 0u) << length;
        fixture->engine.stop();
        EXPECT_EQ(world.files.content(world.hoursJson), "{\n\n}") << length;
    }
}

TEST_F(FaultTest, EveryTruncationOfMinutesIsReadAsNoDataAndReplaced) {
    for (std::size_t length = 0; length < std::string(goodMinutes).size(); ++length) {
        world.files.put(world.minutesJson, goodMinutes);
        world.files.truncate(world.minutesJson, length);
        start();
        EXPECT_EQ(fixture->minutes.snapshot().keyCount(), 0u) << length;
        fixture->engine.stop();
        EXPECT_EQ(world.files.content(world.minutesJson), "{\n\n}") << length;
    }
}

TEST_F(FaultTest, GarbledHoursAndMinutesAreReadAsNoDataAndReplaced) {
    for (const auto* garbage : {"[]", "null", "7", "\"text\"", "{\"2026-01-15 09\" : 3}",
                                "{\"a\" : {\"b\" : {}}}", "{\"a\" : {\"b\" : \"3\"}}", "{} {}", "\xFF"}) {
        world.files.put(world.hoursJson, garbage);
        world.files.put(world.minutesJson, garbage);
        start();
        EXPECT_EQ(fixture->hours.snapshot().keyCount(), 0u) << garbage;
        EXPECT_EQ(fixture->minutes.snapshot().keyCount(), 0u) << garbage;
        fixture->engine.stop();
        EXPECT_EQ(world.files.content(world.hoursJson), "{\n\n}") << garbage;
        EXPECT_EQ(world.files.content(world.minutesJson), "{\n\n}") << garbage;
    }
}

TEST_F(FaultTest, WholeFilesAreReadAndWrittenBackByteForByte) {
    world.files.put(world.todayJson, goodToday);
    world.files.put(world.appsJson, goodApps);
    world.files.put(world.hoursJson, goodHours);
    world.files.put(world.minutesJson, goodMinutes);
    start();
    EXPECT_EQ(fixture->engine.todaySeconds(), Seconds(1840));
    fixture->engine.stop();
    EXPECT_EQ(world.files.content(world.todayJson), goodToday);
    EXPECT_EQ(world.files.content(world.appsJson), goodApps);
    EXPECT_EQ(world.files.content(world.hoursJson), goodHours);
    EXPECT_EQ(world.files.content(world.minutesJson), goodMinutes);
}

TEST_F(FaultTest, EveryByteGarbledNeitherCrashesNorLeavesAnUnreadableFile) {
    const std::string good = goodApps;
    for (std::size_t at = 0; at < good.size(); ++at) {
        for (const char garbage : {'\0', '"', '{', '}', ',', '9', '\xFF'}) {
            auto damaged = good;
            damaged[at] = garbage;
            world.files.put(world.appsJson, damaged);
            AppUsageStore store(world.files, world.log, world.frontmost);
            const auto days = store.allDayKeys();
            store.flush();
            const AppUsageStore next(world.files, world.log, world.frontmost);
            ASSERT_EQ(next.allDayKeys(), days) << damaged;
        }
    }
}

TEST_F(FaultTest, ADamagedFileOfOneStoreLeavesTheOtherAlone) {
    world.files.put(world.todayJson, "[]");
    world.files.put(world.appsJson, goodApps);
    start();
    EXPECT_EQ(fixture->engine.todaySeconds(), Seconds(0));
    EXPECT_EQ(fixture->apps.allDayKeys().size(), 2u);
}

}  // namespace
}  // namespace tidewatch
