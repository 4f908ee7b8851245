// The stores are thread-safe. Most useful under the thread sanitizer.

#include <gmock/gmock.h>

#include <algorithm>
#include <atomic>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "core/restorable_file.h"
#include "platform/fake/fake_time_zone.h"
#include "tests/support/core_fixture.h"

namespace tidewatch {
namespace {

using testing::ElementsAre;

constexpr int rounds = 300;
const DayKey today("2026-01-15");

struct ConcurrencyTest : testing::Test {
    test::FakeWorld world;
    Settings settings{world.preferences};
    DayRule dayRule{world.clock, settings};
};

TEST_F(ConcurrencyTest, NoSecondIsLostBetweenBookingReadingAndFlushing) {
    AppUsageStore store(world.files, world.log, world.frontmost);
    const auto book = [&](const char* app) {
        for (int i = 0; i < rounds; ++i) store.incrementApp(AppId(app), today);
    };
    std::thread first(book, "firefox");
    std::thread second(book, "firefox");
    std::thread reader([&] {
        Seconds last;
        for (int i = 0; i < rounds; ++i) {
            const auto sums = store.aggregate(std::vector{today});
            const auto now = sums.empty() ? Seconds() : sums.front().seconds;
            EXPECT_GE(now, last);
            last = now;
        }
    });
    std::thread flusher([&] {
        for (int i = 0; i < 30; ++i) store.flush();
    });
    for (auto* thread : {&first, &second, &reader, &flusher}) thread->join();
    EXPECT_THAT(store.aggregate(std::vector{today}),
                ElementsAre(AppSeconds{AppId("firefox"), Seconds(2 * rounds)}));
    store.flush();
    const AppUsageStore next(world.files, world.log, world.frontmost);
    EXPECT_EQ(next.aggregate(std::vector{today}), store.aggregate(std::vector{today}));
}

TEST_F(ConcurrencyTest, BucketsAreBookedReadCopiedAndFlushedFromSeveralThreads) {
    MinuteStore store(world.files, world.log, world.frontmost);
    const BucketKey bucket("2026-01-15 09:00");
    const auto book = [&](const char* app) {
        for (int i = 0; i < rounds; ++i) store.incrementApp(AppId(app), bucket);
    };
    std::thread first(book, "firefox");
    std::thread second(book, "xterm");
    std::thread copier([&] {
        Seconds last;
        for (int i = 0; i < rounds; ++i) {
            const auto snapshot = store.snapshot();
            Seconds now;
            UsageSnapshot::Reader reader(snapshot);
            for (UsageSnapshot::Index key = 0; key < snapshot.keyCount(); ++key) {
                reader.forEachApp(key, [&](std::uint32_t, Seconds seconds) { now += seconds; });
            }
            EXPECT_GE(now, last);
            last = now;
            EXPECT_LE(store.entries(bucket).size(), 2u);
        }
    });
    std::thread flusher([&] {
        for (int i = 0; i < 30; ++i) store.flush();
    });
    for (auto* thread : {&first, &second, &copier, &flusher}) thread->join();
    EXPECT_THAT(store.entries(bucket), ElementsAre(AppSeconds{AppId("firefox"), Seconds(rounds)},
                                                   AppSeconds{AppId("xterm"), Seconds(rounds)}));
}

TEST_F(ConcurrencyTest, TheDayIsSetReadAndFlushedFromSeveralThreads) {
    DailyStore store(world.files, world.log, dayRule);
    std::thread writer([&] {
        for (int i = 1; i <= rounds; ++i) store.set(Seconds(i), today);
    });
    std::thread reader([&] {
        Seconds last;
        for (int i = 0; i < rounds; ++i) {
            const auto now = store.seconds(today);
            EXPECT_GE(now, last);
            EXPECT_LE(store.allDays().size(), 1u);
            last = now;
        }
    });
    std::thread flusher([&] {
        for (int i = 0; i < 30; ++i) store.flush();
    });
    for (auto* thread : {&writer, &reader, &flusher}) thread->join();
    EXPECT_EQ(store.seconds(today), Seconds(rounds));
}

TEST_F(ConcurrencyTest, TheDayRuleFollowsSettingsAndZoneFromAnyThread) {
    std::thread asking([&] {
        for (int i = 0; i < rounds; ++i) {
            const auto key = dayRule.today();
            EXPECT_TRUE(key == DayKey("2026-01-14") || key == today) << key.text();
        }
    });
    for (int i = 0; i < rounds; ++i) {
        settings.setDayStartHour(i % 24);
        world.clock.setZone(platform::fixedZone(std::chrono::hours(i % 2)));
    }
    asking.join();
}

// Ticks with a real writing thread, on a disk that stalls during a write.
struct StallTest : testing::Test {
    test::FakeWorld world;
    std::optional<test::CoreFixture> fixture;

    StallTest() {
        world.putAppInFront("xterm");
        fixture.emplace(world, TickListeners(), std::make_unique<SerialQueue>([](JobQueue::Job) {}));
        fixture->engine.start();
        tick(29);
        world.files.stall();
        tick(1);
        world.files.awaitStalledWrite();
    }
    ~StallTest() override { world.files.resume(); }

    void tick(int times) { world.mainLoop.runFor(std::chrono::seconds(times)); }
    void expectOnDisk(int seconds) const {
        EXPECT_EQ(world.files.content(world.todayJson),
                  "{\n  \"2026-01-15\" : " + std::to_string(seconds) + "\n}");
        EXPECT_EQ(world.files.content(world.appsJson),
                  "{\n  \"2026-01-15\" : {\n    \"xterm\" : " + std::to_string(seconds) + "\n  }\n}");
    }
};

TEST_F(StallTest, FiveSecondsOfAStalledDiskCostNone) {
    tick(5);
    EXPECT_EQ(fixture->engine.todaySeconds(), Seconds(35));
    EXPECT_EQ(world.files.content(world.todayJson), std::nullopt);
    world.files.resume();
    fixture->disk->finish();
    expectOnDisk(30);
    tick(25);
    fixture->disk->finish();
    expectOnDisk(60);
}

TEST_F(StallTest, AMinuteAndAHalfOfItBringsTheNewestStateAloneOnceItIsOver) {
    tick(90);
    world.files.resume();
    fixture->disk->finish();
    expectOnDisk(120);
    // The state that was being written, and the newest one; the other files had not been started.
    EXPECT_EQ(std::ranges::count(world.files.writes(), world.todayJson), 2);
    EXPECT_EQ(std::ranges::count(world.files.writes(), world.appsJson), 1);
}

TEST_F(StallTest, TheEndWaitsForTheWriteAndThenWritesTheNewestState) {
    tick(5);
    // Long enough for a destructor that does not wait to finish; one that waits passes whatever the delay.
    std::thread disk([this] {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        world.files.resume();
    });
    fixture->engine.stop();
    expectOnDisk(35);
    disk.join();
}

TEST_F(StallTest, ReadersAndBookingsDoNotWaitEither) {
    EXPECT_EQ(fixture->apps.aggregate(std::vector{today}).front().seconds, Seconds(30));
    fixture->apps.incrementApp(AppId("firefox"), today);
    EXPECT_EQ(fixture->days.seconds(today), Seconds(30));
    EXPECT_EQ(fixture->minutes.snapshot().keyCount(), 1u);
}

TEST_F(ConcurrencyTest, AFileIsRestoredWhileItIsWrittenAndNoOlderTextStaysLast) {
    SerialQueue queue([](JobQueue::Job) {});
    RestorableFile file(world.files, world.log, "notes.json");
    static_cast<void>(file.read([](std::string text) { return std::optional(std::move(text)); }));
    for (int i = 0; i <= rounds; ++i) {
        world.files.removeDirectory("/home/user/.tidewatch");
        // Both at the same time: the queue's thread is awake and waits for this one.
        std::atomic<bool> begun = false;
        queue.post([&] {
            while (!begun) std::this_thread::yield();
        });
        file.restoreOn(queue);
        begun = true;
        // Sooner or later in each round, so that the write meets every step of the other.
        for (std::atomic<int> step = 0; step < 30 * i; ++step) {
        }
        file.write(std::to_string(i));
        queue.finish();
        ASSERT_EQ(world.files.content("/home/user/.tidewatch/notes.json"), std::to_string(i));
    }
}

TEST_F(ConcurrencyTest, FlushesOfTheQueueAndOfOthersNeverPutAnOlderStateLast) {
    SerialQueue queue([](JobQueue::Job) {});
    AppUsageStore store(world.files, world.log, world.frontmost);
    // Each round ends with both, so that neither makes good afterwards what the other has spoilt.
    for (int i = 1; i <= rounds; ++i) {
        std::atomic<bool> begun = false;
        std::thread other([&] {
            begun = true;
            store.flush();
        });
        while (!begun) std::this_thread::yield();
        store.incrementApp(AppId("firefox"), today);
        store.flushOn(queue);
        other.join();
        queue.finish();
        const AppUsageStore next(world.files, world.log, world.frontmost);
        ASSERT_THAT(next.aggregate(std::vector{today}),
                    ElementsAre(AppSeconds{AppId("firefox"), Seconds(i)}));
    }
}

}  // namespace
}  // namespace tidewatch
