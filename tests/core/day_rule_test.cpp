#include "core/day_rule.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "platform/fake/fake_clock.h"
#include "platform/fake/fake_time_zone.h"
#include "platform/fake/memory_preferences.h"

namespace tidewatch {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;
using platform::FakeClock;
using platform::fixedZone;
using platform::madridZone;
using platform::mexicoCityZone;

struct DayRuleTest : testing::Test {
    FakeClock clock{Instant(sys_days(2026y / 1 / 15))};
    platform::MemoryPreferences preferences;
    Settings settings{preferences};

    // The key in a program that is started in the current zone.
    [[nodiscard]] std::string key(Instant instant) const {
        return DayRule(clock, settings).dayKey(instant).text();
    }
};

TEST_F(DayRuleTest, WithDayStart4TheDayChangesAtFour) {
    settings.setDayStartHour(4);
    EXPECT_EQ(key(sys_days(2026y / 1 / 15) + 3h + 59min + 59s), "2026-01-14");
    EXPECT_EQ(key(sys_days(2026y / 1 / 15) + 4h), "2026-01-15");
}

TEST_F(DayRuleTest, WithDayStart0BothBelongToTheCalendarDay) {
    EXPECT_EQ(key(sys_days(2026y / 1 / 15) + 3h + 59min), "2026-01-15");
    EXPECT_EQ(key(sys_days(2026y / 1 / 15) + 4h), "2026-01-15");
}

TEST_F(DayRuleTest, TheDayIsNamedAfterItsFirstCalendarDay) {
    settings.setDayStartHour(5);
    EXPECT_EQ(key(sys_days(2026y / 1 / 15) + 4h + 59min), "2026-01-14");
    EXPECT_EQ(key(sys_days(2026y / 1 / 15) + 5h), "2026-01-15");
    EXPECT_EQ(key(sys_days(2026y / 1 / 1) + 1h), "2025-12-31");
    EXPECT_EQ(key(sys_days(2024y / 3 / 1) + 1h), "2024-02-29");
}

TEST_F(DayRuleTest, WithDayStart23OnlyTheLastHourBelongsToTheDayOfItsDate) {
    settings.setDayStartHour(23);
    EXPECT_EQ(key(sys_days(2026y / 1 / 15) + 22h + 59min), "2026-01-14");
    EXPECT_EQ(key(sys_days(2026y / 1 / 15) + 23h), "2026-01-15");
    EXPECT_EQ(key(sys_days(2026y / 1 / 16) + 12h), "2026-01-15");
}

TEST_F(DayRuleTest, TodayIsTheDayOfTheClock) {
    EXPECT_EQ(DayRule(clock, settings).today(), DayKey("2026-01-15"));
}

TEST_F(DayRuleTest, AChangeOfDayStartTakesEffectAtOnce) {
    const DayRule rule(clock, settings);
    const auto early = sys_days(2026y / 1 / 15) + 2h;
    EXPECT_EQ(rule.dayKey(early), DayKey("2026-01-15"));
    settings.setDayStartHour(4);
    EXPECT_EQ(rule.dayKey(early), DayKey("2026-01-14"));
}

TEST_F(DayRuleTest, AChangeOfZoneDoesNotReachTheDatesUntilTheNextStart) {
    clock.setZone(madridZone());
    const DayRule rule(clock, settings);
    clock.setZone(mexicoCityZone());
    const auto instant = sys_days(2026y / 1 / 15) + 23h + 30min;  // Madrid: the 16th. Mexico: the 15th.
    EXPECT_EQ(rule.dayKey(instant), DayKey("2026-01-16"));
    EXPECT_EQ(key(instant), "2026-01-15");
}

TEST_F(DayRuleTest, AChangeOfZoneReachesTheHourAtOnce) {
    settings.setDayStartHour(4);
    clock.setZone(madridZone());
    const DayRule rule(clock, settings);
    const auto instant = sys_days(2026y / 1 / 15) + 9h + 30min;  // Madrid: 10:30. Mexico: 03:30.
    EXPECT_EQ(rule.dayKey(instant), DayKey("2026-01-15"));
    clock.setZone(mexicoCityZone());
    EXPECT_EQ(rule.dayKey(instant), DayKey("2026-01-14"));
}

TEST_F(DayRuleTest, TheHourOfTheOldZoneNoLongerCounts) {
    settings.setDayStartHour(4);
    clock.setZone(madridZone());
    const DayRule rule(clock, settings);
    const auto instant = sys_days(2026y / 1 / 15) + 1h + 30min;  // Madrid: 02:30. Mexico: 19:30 on the 14th.
    EXPECT_EQ(rule.dayKey(instant), DayKey("2026-01-14"));
    clock.setZone(mexicoCityZone());
    EXPECT_EQ(rule.dayKey(instant), DayKey("2026-01-15"));
}

TEST_F(DayRuleTest, ADayEarlierIsTheSameTimeOnTheClockOfTheZoneOfTheMoment) {
    // Named in UTC; in Madrid the 26th of October 2026, 01:30, is 00:30 UTC, and the same time one calendar
    // day earlier, before the clock went back, is 23:30 UTC on the 24th.
    settings.setDayStartHour(4);
    const DayRule rule(clock, settings);
    clock.setZone(madridZone());
    EXPECT_EQ(rule.dayKey(sys_days(2026y / 10 / 26) + 30min), DayKey("2026-10-24"));
}

TEST_F(DayRuleTest, OffsetsThatAreNoWholeHoursCount) {
    clock.setZone(fixedZone(5h + 45min));
    EXPECT_EQ(key(sys_days(2026y / 1 / 15) + 18h + 14min), "2026-01-15");
    EXPECT_EQ(key(sys_days(2026y / 1 / 15) + 18h + 15min), "2026-01-16");
}

struct Night {
    const char* name;
    std::shared_ptr<const platform::TimeZone> zone;
    year_month_day date;
    int startHour;
    const char* lastOfOldDay;   // UTC
    const char* firstOfNewDay;  // UTC
};

Instant utc(const char* text) {
    int year = 0;
    unsigned month = 0;
    unsigned day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    EXPECT_EQ(std::sscanf(text, "%d-%u-%u %d:%d:%d", &year, &month, &day, &hour, &minute, &second), 6);
    return sys_days(std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day)) +
           hours(hour) + minutes(minute) + seconds(second);
}

class DaylightSavingNights : public testing::TestWithParam<Night> {
protected:
    FakeClock clock{Instant(sys_days(GetParam().date))};
    platform::MemoryPreferences preferences;
    Settings settings{preferences};
    const std::shared_ptr<const platform::TimeZone> zone = GetParam().zone;

    DaylightSavingNights() {
        clock.setZone(zone);
        settings.setDayStartHour(GetParam().startHour);
    }

    // The local time decides: the date, or the day before it until the start hour.
    [[nodiscard]] DayKey byTheWall(Instant instant) const {
        const auto shown = civilTime(instant, zone->utcOffset(instant));
        const auto day =
            shown.hour < GetParam().startHour ? sys_days(shown.date) - days(1) : sys_days(shown.date);
        const year_month_day date(day);
        return DayKey(
            fmt::format("{}-{:02}-{:02}", int(date.year()), unsigned(date.month()), unsigned(date.day())));
    }
};

TEST_P(DaylightSavingNights, TheDayOfThatDateBeginsAtTheRightMoment) {
    const DayRule rule(clock, settings);
    const auto& date = GetParam().date;
    const DayKey key(
        fmt::format("{}-{:02}-{:02}", int(date.year()), unsigned(date.month()), unsigned(date.day())));
    EXPECT_LT(rule.dayKey(utc(GetParam().lastOfOldDay)), key);
    EXPECT_EQ(rule.dayKey(utc(GetParam().firstOfNewDay)), key);
}

TEST_P(DaylightSavingNights, EveryMinuteAroundItBelongsToTheDayThatTheWallTells) {
    const DayRule rule(clock, settings);
    const auto noon = sys_days(GetParam().date) + 12h;
    for (auto instant = Instant(noon - 48h); instant < noon + 48h; instant += 1min) {
        ASSERT_EQ(rule.dayKey(instant), byTheWall(instant)) << instant.time_since_epoch().count();
    }
}

INSTANTIATE_TEST_SUITE_P(DayRule, DaylightSavingNights,
                         testing::Values(Night{"MadridSpringFrom0", madridZone(), 2026y / 3 / 29, 0,
                                               "2026-03-28 22:59:59", "2026-03-28 23:00:00"},
                                         Night{"MadridSpringFrom4", madridZone(), 2026y / 3 / 29, 4,
                                               "2026-03-29 01:59:59", "2026-03-29 02:00:00"},
                                         Night{"MadridSpringFrom23", madridZone(), 2026y / 3 / 29, 23,
                                               "2026-03-29 20:59:59", "2026-03-29 21:00:00"},
                                         Night{"MadridSpringFrom2WhichIsSkipped", madridZone(),
                                               2026y / 3 / 29, 2, "2026-03-29 00:59:59",
                                               "2026-03-29 01:00:00"},
                                         Night{"MadridAutumnFrom0", madridZone(), 2026y / 10 / 25, 0,
                                               "2026-10-24 21:59:59", "2026-10-24 22:00:00"},
                                         Night{"MadridAutumnFrom4", madridZone(), 2026y / 10 / 25, 4,
                                               "2026-10-25 02:59:59", "2026-10-25 03:00:00"},
                                         Night{"MadridAutumnFrom23", madridZone(), 2026y / 10 / 25, 23,
                                               "2026-10-25 21:59:59", "2026-10-25 22:00:00"},
                                         Night{"MexicoSpringFrom0", mexicoCityZone(), 2022y / 4 / 3, 0,
                                               "2022-04-03 05:59:59", "2022-04-03 06:00:00"},
                                         Night{"MexicoSpringFrom4", mexicoCityZone(), 2022y / 4 / 3, 4,
                                               "2022-04-03 08:59:59", "2022-04-03 09:00:00"},
                                         Night{"MexicoSpringFrom23", mexicoCityZone(), 2022y / 4 / 3, 23,
                                               "2022-04-04 03:59:59", "2022-04-04 04:00:00"},
                                         Night{"MexicoAutumnFrom0", mexicoCityZone(), 2022y / 10 / 30, 0,
                                               "2022-10-30 04:59:59", "2022-10-30 05:00:00"},
                                         Night{"MexicoAutumnFrom4", mexicoCityZone(), 2022y / 10 / 30, 4,
                                               "2022-10-30 09:59:59", "2022-10-30 10:00:00"},
                                         Night{"MexicoAutumnFrom23", mexicoCityZone(), 2022y / 10 / 30, 23,
                                               "2022-10-31 04:59:59", "2022-10-31 05:00:00"}),
                         [](const auto& instance) { return instance.param.name; });

}  // namespace
}  // namespace tidewatch
