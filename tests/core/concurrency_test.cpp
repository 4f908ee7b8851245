// The stores' promise that any thread may call them. Worth most under the thread sanitizer.

#include <gmock/gmock.h>

#include <thread>
#include <vector>

#include "platform/fake/fake_time_zone.h"
#include "tests/support/core_rooms.h"

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
            for (UsageSnapshot::Index key = 0; key < snapshot.keyCount(); ++key) {
                snapshot.forEachApp(key, [&](std::uint32_t, Seconds seconds) { now += seconds; });
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

}  // namespace
}  // namespace tidewatch
