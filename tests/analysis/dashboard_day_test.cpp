// Which day is selected, and how the selection moves.

#include <gmock/gmock.h>

#include <vector>

#include "analysis/dashboard_model_fixture.h"
#include "platform/fake/fake_time_zone.h"

namespace tidewatch {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;
using testing::SizeIs;

using Field = DashboardModel::Field;

TEST_F(DashboardModelTest, TodayHasNoNextDayAndIsNotReloaded) {
    int announced = 0;
    const auto connection = model_.changed.connect([&](Field) { ++announced; });
    model_.nextDay();
    EXPECT_EQ(announced, 0);
    EXPECT_EQ(model_.selectedDate(), world_.clock.now());
}

TEST_F(DashboardModelTest, StepsThroughDaysAndBackToToday) {
    book(editor, "2026-01-13", 60);
    model_.previousDay();
    model_.previousDay();
    EXPECT_EQ(model_.selectedDayKey(), DayKey("2026-01-13"));
    EXPECT_FALSE(model_.isSelectedToday());
    EXPECT_EQ(model_.totalActiveToday(), Seconds(60));
    model_.nextDay();
    EXPECT_EQ(model_.selectedDayKey(), DayKey("2026-01-14"));
    world_.clock.advance(1h);
    model_.today();
    EXPECT_TRUE(model_.isSelectedToday());
    EXPECT_EQ(model_.selectedDate(), world_.clock.now());
    EXPECT_EQ(model_.totalActiveToday(), Seconds());
}

TEST_F(DashboardModelTest, AStepAnnouncesTheDateAndThenReloads) {
    std::vector<Field> order;
    const auto connection = model_.changed.connect([&](Field field) { order.push_back(field); });
    model_.previousDay();
    ASSERT_THAT(order, SizeIs(9));
    EXPECT_EQ(order.front(), Field::selectedDate);
    EXPECT_EQ(order.back(), Field::avg7Score);
}

TEST_F(DashboardModelTest, StepsKeepTheTimeOnTheClockWhenTheClockChanges) {
    world_.clock.setZone(platform::madridZone());
    world_.clock.setNow(sys_days(2026y / 3 / 30) + 22h + 30min);  // half past midnight on the 31st
    DashboardModel model(fixture_.sources());
    for (const auto* day : {"2026-03-30", "2026-03-29", "2026-03-28"}) {
        model.previousDay();
        EXPECT_EQ(model.selectedDayKey(), DayKey(day));
    }
    EXPECT_EQ(model.selectedDate(), sys_days(2026y / 3 / 27) + 23h + 30min);
    model.nextDay();
    model.nextDay();
    EXPECT_EQ(model.selectedDayKey(), DayKey("2026-03-30"));
}

TEST_F(DashboardModelTest, TheDayIsThatOfTheCalendarWhereverTheUsersDayMayStart) {
    fixture_.settings.setDayStartHour(5);
    world_.clock.setNow(sys_days(2026y / 1 / 16) + 2h);
    DashboardModel model(fixture_.sources());
    EXPECT_EQ(model.selectedDayKey(), DayKey("2026-01-16"));
    EXPECT_TRUE(model.isSelectedToday());
    model.reload();
    EXPECT_EQ(model.hourSummaries().front().hour, 5);
}

TEST_F(DashboardModelTest, TheKeyStaysInTheZoneOfTheStartAndTodayIsThatOfTheMoment) {
    world_.clock.setZone(platform::fixedZone(10h));  // 19:00 there
    EXPECT_EQ(model_.selectedDayKey(), DayKey("2026-01-15"));
    world_.clock.advance(6h);  // 15:00 in UTC, 01:00 of the 16th there
    EXPECT_FALSE(model_.isSelectedToday());
    model_.today();
    EXPECT_TRUE(model_.isSelectedToday());
    EXPECT_EQ(model_.selectedDayKey(), DayKey("2026-01-15"));
}

}  // namespace
}  // namespace tidewatch
