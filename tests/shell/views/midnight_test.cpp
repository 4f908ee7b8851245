// The statistics window while midnight passes.

#include <gtest/gtest.h>

#include <string>

#include "shell/views/stats_scene.h"

namespace tidewatch {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;

const Instant justBefore = sys_days(2026y / 1 / 15) + 23h + 59min + 55s;

struct MidnightTest : testing::Test, StatsWorld {
    MidnightTest() {
        machine_.clock.setNow(justBefore);
        dashboard_.header()->today();
        appear();
    }

    void passMidnight() { machine_.mainLoop.runFor(10s); }

    /// The header: the selected day, and whether its forward arrow is enabled.
    [[nodiscard]] std::string head() {
        return header_.date().toStdString() + (header_.canGoForward() ? " >" : " |");
    }
    [[nodiscard]] std::string total() { return dashboard_.overview()->total().toStdString(); }

    HeaderPresenter& header_ = *dashboard_.header();
};

TEST_F(MidnightTest, BeforeItThereIsNoDayAfterTheOneOnShow) {
    machine_.mainLoop.runFor(4s);
    EXPECT_EQ(head(), "jue 15 ene |");
    header_.nextDay();
    EXPECT_EQ(head(), "jue 15 ene |");
}

TEST_F(MidnightTest, TheArrowLeadsToTheNewDayAndNoFurther) {
    passMidnight();
    header_.nextDay();
    EXPECT_EQ(head(), "vie 16 ene |");
    header_.nextDay();
    EXPECT_EQ(head(), "vie 16 ene |");
}

TEST_F(MidnightTest, TheButtonForTodayLeadsToTheNewDay) {
    passMidnight();
    header_.today();
    EXPECT_EQ(head(), "vie 16 ene |");
}

TEST_F(MidnightTest, TheOtherArrowLeadsBackFromTheDayOnShow) {
    passMidnight();
    header_.previousDay();
    EXPECT_EQ(head(), "mié 14 ene >");
    header_.nextDay();
    EXPECT_EQ(head(), "jue 15 ene >");
}

TEST_F(MidnightTest, ADayOfThePastStaysOnShow) {
    header_.previousDay();
    ASSERT_EQ(head(), "mié 14 ene >");
    passMidnight();
    EXPECT_EQ(head(), "mié 14 ene >");
    header_.nextDay();
    header_.nextDay();
    EXPECT_EQ(head(), "vie 16 ene |");
}

TEST_F(MidnightTest, TheFiguresOfTheDayOnShowAreTheLastBeforeItAndStandStill) {
    book("code", DayKey("2026-01-15"), 23, 50, 60);
    machine_.mainLoop.runFor(4s);
    ASSERT_EQ(total(), "1m");
    passMidnight();
    book("code", DayKey("2026-01-15"), 23, 50, 60);
    book("code", DayKey("2026-01-16"), 0, 0, 300);
    machine_.mainLoop.runFor(10s);
    EXPECT_EQ(total(), "1m");
}

TEST_F(MidnightTest, TheNewDayIsFollowedOnceItIsOnShow) {
    passMidnight();
    header_.nextDay();
    book("code", DayKey("2026-01-16"), 0, 0, 300);
    machine_.mainLoop.runFor(2s);
    EXPECT_EQ(total(), "5m");
}

TEST_F(MidnightTest, ShownAgainAfterItTheWindowStillHasTheDayOnShow) {
    presenter_.disappear();
    passMidnight();
    appear();
    EXPECT_EQ(head(), "jue 15 ene >");
}

TEST_F(MidnightTest, AClockSetBackOverItMakesTheDayOnShowTodayAgain) {
    passMidnight();
    header_.nextDay();
    machine_.clock.setNow(sys_days(2026y / 1 / 15) + 23h);
    machine_.mainLoop.runFor(2s);
    header_.previousDay();
    EXPECT_EQ(head(), "jue 15 ene |");
}

}  // namespace
}  // namespace tidewatch
