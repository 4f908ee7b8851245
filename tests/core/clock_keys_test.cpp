#include "core/clock_keys.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <chrono>
#include <set>

#include "platform/fake/fake_time_zone.h"
#include "tests/support/core_fixture.h"

namespace tidewatch {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;
using testing::ElementsAre;

const DayKey today("2026-01-15");

struct ClockKeysTest : testing::Test {
    test::FakeWorld world;
    test::CoreFixture fixture{world};

    [[nodiscard]] static Instant at(milliseconds timeOfDay) { return sys_days(2026y / 1 / 15) + timeOfDay; }
    [[nodiscard]] std::string hour(Instant instant) const { return fixture.keys.hourKey(instant).text(); }
    [[nodiscard]] std::string bucket(Instant instant) const { return fixture.keys.bucketKey(instant).text(); }
};

TEST_F(ClockKeysTest, AnHourIsNamedAfterTheDayAndTheHourOfTheClock) {
    EXPECT_EQ(hour(at(9h)), "2026-01-15 09");
    EXPECT_EQ(hour(at(9h + 59min + 59s + 999ms)), "2026-01-15 09");
    EXPECT_EQ(hour(at(0h)), "2026-01-15 00");
    EXPECT_EQ(hour(at(23h)), "2026-01-15 23");
}

TEST_F(ClockKeysTest, WithDayStart5TheNightBelongsToTheDayBefore) {
    fixture.settings.setDayStartHour(5);
    EXPECT_EQ(hour(at(2h + 30min)), "2026-01-14 02");
    EXPECT_EQ(hour(at(4h + 59min)), "2026-01-14 04");
    EXPECT_EQ(hour(at(5h)), "2026-01-15 05");
    EXPECT_EQ(bucket(at(2h + 30min)), "2026-01-14 02:30");
}

TEST_F(ClockKeysTest, Minute59FallsInBucket50AndMinute0InBucket0) {
    EXPECT_EQ(bucket(at(9h + 59min + 59s)), "2026-01-15 09:50");
    EXPECT_EQ(bucket(at(9h)), "2026-01-15 09:00");
}

TEST_F(ClockKeysTest, TheKeyFor0905EndsIn0900) {
    EXPECT_EQ(bucket(at(9h + 5min)), "2026-01-15 09:00");
    EXPECT_EQ(bucket(at(9h + 9min + 59s)), "2026-01-15 09:00");
    EXPECT_EQ(bucket(at(9h + 10min)), "2026-01-15 09:10");
}

TEST_F(ClockKeysTest, TheHourIsThatOfTheZoneOfTheMoment) {
    world.clock.setZone(platform::fixedZone(5h + 30min));
    EXPECT_EQ(hour(at(9h)), "2026-01-15 14");
    EXPECT_EQ(bucket(at(9h + 15min)), "2026-01-15 14:40");
    world.clock.setZone(platform::fixedZone(-9h - 30min));
    EXPECT_EQ(hour(at(9h)), "2026-01-15 23");
}

TEST_F(ClockKeysTest, BeforeTheEpochToo) {
    EXPECT_EQ(bucket(sys_days(1969y / 12 / 31) + 23h + 59min), "1969-12-31 23:50");
}

TEST_F(ClockKeysTest, TheHourThatADaylightSavingNightRepeatsIsOneHour) {
    world.clock.setZone(platform::madridZone());
    const test::CoreFixture madrid(world);
    const auto firstTwo = sys_days(2026y / 10 / 25) + 0h + 30min;
    EXPECT_EQ(madrid.keys.hourKey(firstTwo).text(), "2026-10-25 02");
    EXPECT_EQ(madrid.keys.hourKey(firstTwo + 1h).text(), "2026-10-25 02");
    EXPECT_EQ(madrid.keys.hourKey(firstTwo + 2h).text(), "2026-10-25 03");
}

TEST_F(ClockKeysTest, TheHourThatADaylightSavingNightSkipsIsNeverNamed) {
    world.clock.setZone(platform::madridZone());
    const test::CoreFixture madrid(world);
    const auto lastOne = sys_days(2026y / 3 / 29) + 0h + 30min;
    EXPECT_EQ(madrid.keys.hourKey(lastOne).text(), "2026-03-29 01");
    EXPECT_EQ(madrid.keys.hourKey(lastOne + 1h).text(), "2026-03-29 03");
}

TEST_F(ClockKeysTest, ADayHas24HoursInTheOrderOfTheDay) {
    const auto hours = fixture.keys.hourKeys(today);
    EXPECT_EQ(hours.size(), 24u);
    EXPECT_EQ(hours.front(), HourKey("2026-01-15 00"));
    EXPECT_EQ(hours.back(), HourKey("2026-01-15 23"));
    fixture.settings.setDayStartHour(5);
    const auto later = fixture.keys.hourKeys(today);
    EXPECT_EQ(later.front(), HourKey("2026-01-15 05"));
    EXPECT_EQ(later[18], HourKey("2026-01-15 23"));
    EXPECT_EQ(later[19], HourKey("2026-01-15 00"));
    EXPECT_EQ(later.back(), HourKey("2026-01-15 04"));
}

TEST_F(ClockKeysTest, ADayHas144BucketsInTheOrderOfTheDay) {
    fixture.settings.setDayStartHour(5);
    const auto buckets = fixture.keys.bucketKeys(today);
    EXPECT_EQ(buckets.size(), 144u);
    EXPECT_EQ(buckets[0], BucketKey("2026-01-15 05:00"));
    EXPECT_EQ(buckets[1], BucketKey("2026-01-15 05:10"));
    EXPECT_EQ(buckets[5], BucketKey("2026-01-15 05:50"));
    EXPECT_EQ(buckets[6], BucketKey("2026-01-15 06:00"));
    EXPECT_EQ(buckets[143], BucketKey("2026-01-15 04:50"));
}

TEST_F(ClockKeysTest, WhicheverTheDayStartTheKeysOfADayAreTheSame) {
    const auto asSet = [&] {
        const auto keys = fixture.keys.bucketKeys(today);
        return std::set(keys.begin(), keys.end());
    };
    const auto atMidnight = asSet();
    EXPECT_EQ(atMidnight.size(), 144u);
    for (int start = 1; start < 24; ++start) {
        fixture.settings.setDayStartHour(start);
        EXPECT_EQ(asSet(), atMidnight) << start;
    }
}

TEST_F(ClockKeysTest, EveryMomentsKeysAreAmongThoseOfItsDay) {
    for (const int start : {0, 4, 23}) {
        fixture.settings.setDayStartHour(start);
        for (auto instant = at(0h); instant < at(48h); instant += 7min) {
            const auto day = fixture.dayRule.dayKey(instant);
            const auto hours = fixture.keys.hourKeys(day);
            const auto buckets = fixture.keys.bucketKeys(day);
            EXPECT_NE(std::ranges::find(hours, fixture.keys.hourKey(instant)), hours.end());
            EXPECT_NE(std::ranges::find(buckets, fixture.keys.bucketKey(instant)), buckets.end());
        }
    }
}

TEST(ComponentsTest, AreHourAndMinuteOfABucketKey) {
    EXPECT_EQ(components(BucketKey("2026-01-15 09:40")), (ClockMinute{9, 40}));
    EXPECT_EQ(components(BucketKey("2026-01-15 23:00")), (ClockMinute{23, 0}));
}

TEST(ComponentsTest, RejectAKeyWithoutAMinute) {
    for (const auto* key : {"2026-01-15", "2026-01-15 09", "2026-01-15 09:", "2026-01-15 :40", "", " ", ":",
                            "2026-01-15 09:40:10", "2026-01-15 nine:40", "2026-01-15 09:4x",
                            "2026-01-15 09:99999999999999999999"}) {
        EXPECT_EQ(components(BucketKey(key)), std::nullopt) << key;
    }
}

TEST(ComponentsTest, AreParsedAfterTheLastSpace) {
    EXPECT_EQ(components(BucketKey("08:10 09:40")), (ClockMinute{9, 40}));
    EXPECT_EQ(components(BucketKey("09:40")), (ClockMinute{9, 40}));
    EXPECT_EQ(components(BucketKey("2026-01-15  09:40 ")), (ClockMinute{9, 40}));
}

}  // namespace
}  // namespace tidewatch
