#include "base/calendar_day.h"

#include <gtest/gtest.h>

namespace tidewatch {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;

TEST(CalendarDay, ChangesAtMidnightOfTheClockOnTheWall) {
    const Instant instant = sys_days(2026y / 1 / 15) + 22h + 59min + 59s + 999ms;
    EXPECT_EQ(calendarDay(instant, 1h), sys_days(2026y / 1 / 15));
    EXPECT_EQ(calendarDay(instant + 1ms, 1h), sys_days(2026y / 1 / 16));
    EXPECT_EQ(calendarDay(instant, -23h), sys_days(2026y / 1 / 14));
}

TEST(CalendarDay, MillisecondsBeforeTheEpochBelongToTheEarlierDay) {
    EXPECT_EQ(calendarDay(Instant(-1ms), 0s), sys_days(1969y / 12 / 31));
}

TEST(ToDayKey, PadsEveryPart) {
    EXPECT_EQ(toDayKey(sys_days(2026y / 3 / 7)).text(), "2026-03-07");
    EXPECT_EQ(toDayKey(sys_days(987y / 12 / 31)).text(), "0987-12-31");
}

TEST(ParseDayKey, ParsesKeys) {
    EXPECT_EQ(parseDayKey("2026-03-07"), sys_days(2026y / 3 / 7));
    EXPECT_EQ(parseDayKey("2024-02-29"), sys_days(2024y / 2 / 29));
    EXPECT_EQ(parseDayKey("0987-12-31"), sys_days(987y / 12 / 31));
}

TEST(ParseDayKey, RejectsOtherTexts) {
    for (const auto* text : {"", "2026-3-7", "2026-03-7 ", "2026/03/07", "2026-03-07 ", "2025-02-29",
                             "2026-13-01", "2026-00-10", "2026-01-00", "+026-01-01", "hoy", "2026-0a-01"}) {
        EXPECT_EQ(parseDayKey(text), std::nullopt) << text;
    }
}

}  // namespace
}  // namespace tidewatch
