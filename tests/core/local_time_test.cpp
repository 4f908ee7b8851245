#include "core/local_time.h"

#include <gtest/gtest.h>

#include "platform/fake/fake_time_zone.h"

namespace tidewatch {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;

LocalTime wall(year_month_day day, minutes time) {
    return local_days(day) + time;
}
Instant utc(year_month_day day, minutes time) {
    return sys_days(day) + time;
}

TEST(LocalTimeTest, AnOrdinaryTimeIsOneInstant) {
    const auto madrid = platform::madridZone();
    EXPECT_EQ(instantOf(wall(2026y / 1 / 15, 9h), *madrid), utc(2026y / 1 / 15, 8h));
    EXPECT_EQ(instantOf(wall(2026y / 7 / 15, 9h), *madrid), utc(2026y / 7 / 15, 7h));
    EXPECT_EQ(localTime(utc(2026y / 7 / 15, 7h), *madrid), wall(2026y / 7 / 15, 9h));
}

TEST(LocalTimeTest, ATimeThatASpringNightSkipsIsAsMuchLater) {
    const auto madrid = platform::madridZone();
    EXPECT_EQ(instantOf(wall(2026y / 3 / 29, 1h + 59min), *madrid), utc(2026y / 3 / 29, 59min));
    EXPECT_EQ(instantOf(wall(2026y / 3 / 29, 2h), *madrid), utc(2026y / 3 / 29, 1h));
    EXPECT_EQ(instantOf(wall(2026y / 3 / 29, 2h + 30min), *madrid), utc(2026y / 3 / 29, 1h + 30min));
    EXPECT_EQ(instantOf(wall(2026y / 3 / 29, 3h), *madrid), utc(2026y / 3 / 29, 1h));
    const auto mexico = platform::mexicoCityZone();
    EXPECT_EQ(instantOf(wall(2022y / 4 / 3, 1h + 59min), *mexico), utc(2022y / 4 / 3, 7h + 59min));
    EXPECT_EQ(instantOf(wall(2022y / 4 / 3, 2h + 30min), *mexico), utc(2022y / 4 / 3, 8h + 30min));
    EXPECT_EQ(instantOf(wall(2022y / 4 / 3, 3h), *mexico), utc(2022y / 4 / 3, 8h));
}

TEST(LocalTimeTest, ATimeThatAnAutumnNightRepeatsIsTheFirst) {
    const auto madrid = platform::madridZone();
    EXPECT_EQ(instantOf(wall(2026y / 10 / 25, 1h + 59min), *madrid), utc(2026y / 10 / 24, 23h + 59min));
    EXPECT_EQ(instantOf(wall(2026y / 10 / 25, 2h), *madrid), utc(2026y / 10 / 25, 0h));
    EXPECT_EQ(instantOf(wall(2026y / 10 / 25, 2h + 59min), *madrid), utc(2026y / 10 / 25, 59min));
    EXPECT_EQ(instantOf(wall(2026y / 10 / 25, 3h), *madrid), utc(2026y / 10 / 25, 2h));
    const auto mexico = platform::mexicoCityZone();
    EXPECT_EQ(instantOf(wall(2022y / 10 / 30, 1h + 30min), *mexico), utc(2022y / 10 / 30, 6h + 30min));
    EXPECT_EQ(instantOf(wall(2022y / 10 / 30, 2h), *mexico), utc(2022y / 10 / 30, 8h));
}

TEST(LocalTimeTest, ADayThatAZoneLeavesOutIsTheOneAfterIt) {
    const platform::FakeTimeZone apia(-10h, {{utc(2011y / 12 / 30, 10h), 14h}});
    EXPECT_EQ(instantOf(wall(2011y / 12 / 29, 23h), apia), utc(2011y / 12 / 30, 9h));
    EXPECT_EQ(instantOf(wall(2011y / 12 / 30, 12h), apia), instantOf(wall(2011y / 12 / 31, 12h), apia));
    EXPECT_EQ(instantOf(wall(2011y / 12 / 31, 0h), apia), utc(2011y / 12 / 30, 10h));
}

TEST(LocalTimeTest, DaysKeepTheTimeOnTheClock) {
    const auto madrid = platform::madridZone();
    const auto noonOf = [&](year_month_day day) { return instantOf(wall(day, 12h), *madrid); };
    EXPECT_EQ(plusDays(noonOf(2026y / 3 / 28), days(1), *madrid), noonOf(2026y / 3 / 29));
    EXPECT_EQ(noonOf(2026y / 3 / 29) - noonOf(2026y / 3 / 28), 23h);
    EXPECT_EQ(plusDays(noonOf(2026y / 10 / 25), days(-1), *madrid), noonOf(2026y / 10 / 24));
    EXPECT_EQ(plusDays(noonOf(2026y / 3 / 1), days(-1), *madrid), noonOf(2026y / 2 / 28));
    EXPECT_EQ(plusDays(noonOf(2026y / 6 / 1), days(-365), *madrid), noonOf(2025y / 6 / 1));
}

TEST(LocalTimeTest, EveryInstantComesBackButForTheSecondOfATimeThatComesTwice) {
    for (const auto& zone :
         {platform::madridZone(), platform::mexicoCityZone(), platform::fixedZone(45min)}) {
        for (auto at = utc(2022y / 3 / 1, 0h); at < utc(2022y / 12 / 1, 0h); at += 20min) {
            const auto back = instantOf(localTime(at, *zone), *zone);
            EXPECT_TRUE(back == at || back == at - 1h) << at.time_since_epoch().count();
            EXPECT_EQ(localTime(back, *zone), localTime(at, *zone));
        }
    }
}

TEST(LocalTimeTest, AnOffsetOfAllDayHoldsForEveryTimeOfTheDay) {
    for (const auto& zone : {platform::madridZone(), platform::mexicoCityZone()}) {
        DayOffsets offsets(*zone);
        int daysWithout = 0;
        const auto holds = [&](local_days day) {
            const auto offset = offsets.allDay(day);
            if (!offset) ++daysWithout;
            for (auto time = 0min; offset && time < 24h; time += 10min) {
                ASSERT_EQ(instantOf(day + time, *zone), Instant((day + time).time_since_epoch()) - *offset);
            }
        };
        const local_days first = local_days(2021y / 12 / 1);
        const local_days last = local_days(2022y / 12 / 31);
        for (auto day = first; day < last; day += days(1)) holds(day);
        for (auto day = last; day > first; day -= days(1)) holds(day);
        EXPECT_EQ(daysWithout, 2 * 3 * 2)
            << "there and back again: the days of two changes, with those beside them";
    }
}

}  // namespace
}  // namespace tidewatch
