#include "analysis/spanish_dates.h"

#include <gmock/gmock.h>

#include <vector>

namespace tidewatch::spanish {
namespace {

using namespace std::chrono;
using testing::ElementsAre;

TEST(SpanishDatesTest, TheWeekAndTheYearHaveTheirNames) {
    std::vector<std::string_view> weekdays;
    std::vector<std::string_view> shortWeekdays;
    for (unsigned day = 0; day < 7; ++day) {
        weekdays.push_back(name(weekday(day)));
        shortWeekdays.push_back(abbreviation(weekday(day)));
    }
    EXPECT_THAT(weekdays,
                ElementsAre("domingo", "lunes", "martes", "miércoles", "jueves", "viernes", "sábado"));
    EXPECT_THAT(shortWeekdays, ElementsAre("dom", "lun", "mar", "mié", "jue", "vie", "sáb"));
    std::vector<std::string_view> months;
    std::vector<std::string_view> shortMonths;
    for (unsigned number = 1; number <= 12; ++number) {
        months.push_back(name(month(number)));
        shortMonths.push_back(abbreviation(month(number)));
    }
    EXPECT_THAT(months, ElementsAre("enero", "febrero", "marzo", "abril", "mayo", "junio", "julio", "agosto",
                                    "septiembre", "octubre", "noviembre", "diciembre"));
    EXPECT_THAT(shortMonths, ElementsAre("ene", "feb", "mar", "abr", "may", "jun", "jul", "ago", "sep", "oct",
                                         "nov", "dic"));
}

TEST(SpanishDatesTest, ADayIsItsWeekdayItsNumberAndItsMonth) {
    EXPECT_EQ(weekdayAndDay(2026y / 11 / 20), "vie 20 nov");
    EXPECT_EQ(weekdayAndDay(2026y / 1 / 7), "mié 7 ene");
    EXPECT_EQ(weekdayAndDay(2024y / 2 / 29), "jue 29 feb");
}

TEST(SpanishDatesTest, AMonthAsAHeadingBeginsWithACapital) {
    EXPECT_EQ(monthTitle(2026y / November), "Noviembre 2026");
    EXPECT_EQ(monthTitle(2027y / January), "Enero 2027");
}

TEST(SpanishDatesTest, DateAndTimeStandTogether) {
    EXPECT_EQ(dateAndTime({2026y / 11 / 21, 9, 5, 59}), "21 nov 2026 · 09:05");
    EXPECT_EQ(dateAndTime({2026y / 3 / 1, 0, 0, 0}), "1 mar 2026 · 00:00");
}

TEST(SpanishDatesTest, AClockHasTwoHalves) {
    EXPECT_EQ(timeOfDay(0, 0), "12:00 am");
    EXPECT_EQ(timeOfDay(9, 5), "9:05 am");
    EXPECT_EQ(timeOfDay(12, 30), "12:30 pm");
    EXPECT_EQ(timeOfDay(23, 59), "11:59 pm");
    EXPECT_EQ(hourOfDay(0), "12 am");
    EXPECT_EQ(hourOfDay(11), "11 am");
    EXPECT_EQ(hourOfDay(12), "12 pm");
    EXPECT_EQ(hourOfDay(15), "3 pm");
}

}  // namespace
}  // namespace tidewatch::spanish
