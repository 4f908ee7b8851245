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

TEST(DayKeyOf, PadsEveryPart) {
    EXPECT_EQ(dayKeyOf(sys_days(2026y / 3 / 7)).text(), "2026-03-07");
    EXPECT_EQ(dayKeyOf(sys_days(987y / 12 / 31)).text(), "0987-12-31");
}

}  // namespace
}  // namespace tidewatch
