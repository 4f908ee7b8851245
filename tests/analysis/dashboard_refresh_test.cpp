// The live refresh of today.

#include <gmock/gmock.h>

#include "analysis/dashboard_model_fixture.h"

namespace tidewatch {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;

using Field = DashboardModel::Field;

TEST_F(DashboardModelTest, TodayIsReloadedEveryTwoSecondsAlsoWhileAMenuIsOpen) {
    world_.mainLoop.setMenu(platform::FakeMainLoop::Menu::open);
    model_.startLiveRefresh();
    book(editor, "2026-01-15", 60);
    world_.mainLoop.runFor(1999ms);
    EXPECT_EQ(model_.totalActiveToday(), Seconds());
    world_.mainLoop.runFor(1ms);
    EXPECT_EQ(model_.totalActiveToday(), Seconds(60));
    book(editor, "2026-01-15", 1);
    world_.mainLoop.runFor(2s);
    EXPECT_EQ(model_.totalActiveToday(), Seconds(61));
}

TEST_F(DashboardModelTest, APastDayIsStaticWhileTheTimerRunsOn) {
    model_.previousDay();
    model_.startLiveRefresh();
    book(editor, "2026-01-14", 60);
    world_.mainLoop.runFor(10s);
    EXPECT_EQ(model_.totalActiveToday(), Seconds());
    EXPECT_EQ(world_.mainLoop.timerCount(), 1U);
    model_.nextDay();
    book(editor, "2026-01-15", 5);
    world_.mainLoop.runFor(2s);
    EXPECT_EQ(model_.totalActiveToday(), Seconds(5));
}

TEST_F(DashboardModelTest, MidnightMakesTheDayOnShowAPastOne) {
    world_.clock.setNow(sys_days(2026y / 1 / 15) + 23h + 59min + 59s);
    DashboardModel model(fixture_.sources());
    model.startLiveRefresh();
    book(editor, "2026-01-15", 60);
    world_.mainLoop.runFor(10s);
    EXPECT_FALSE(model.isSelectedToday());
    EXPECT_EQ(model.totalActiveToday(), Seconds());
}

TEST_F(DashboardModelTest, TheLiveRefreshIsOneTimerThatStops) {
    model_.startLiveRefresh();
    model_.startLiveRefresh();
    EXPECT_EQ(world_.mainLoop.timerCount(), 1U);
    model_.stopLiveRefresh();
    model_.stopLiveRefresh();
    EXPECT_EQ(world_.mainLoop.timerCount(), 0U);
    book(editor, "2026-01-15", 60);
    world_.mainLoop.runFor(10s);
    EXPECT_EQ(model_.totalActiveToday(), Seconds());
}

TEST_F(DashboardModelTest, TheTimerEndsWithTheModelAndMayBeStoppedFromWithinAReload) {
    {
        DashboardModel model(fixture_.sources());
        model.startLiveRefresh();
        EXPECT_EQ(world_.mainLoop.timerCount(), 1U);
    }
    EXPECT_EQ(world_.mainLoop.timerCount(), 0U);
    model_.startLiveRefresh();
    const auto connection = model_.changed.connect([&](Field) { model_.stopLiveRefresh(); });
    world_.mainLoop.runFor(10s);
    EXPECT_EQ(world_.mainLoop.timerCount(), 0U);
}

}  // namespace
}  // namespace tidewatch
