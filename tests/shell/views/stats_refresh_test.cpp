// Refreshes and theme changes while the statistics window is open.

#include <gtest/gtest.h>

#include <chrono>

#include "shell/views/stats_view_fixture.h"

namespace tidewatch {
namespace {

using std::chrono::seconds;

TEST_F(StatsViewTest, ARefreshKeepsScrollFocusAndRows) {
    showTab(detailsTab, {820, 560});
    auto* row = item("firefox");
    ASSERT_NE(row, nullptr);
    row->forceActiveFocus(Qt::TabFocusReason);
    auto* pane = row->parentItem();
    while (!pane->property("contentY").isValid()) pane = pane->parentItem();
    pane->setProperty("contentY", 60.0);
    book("firefox", today(), 16, 30, 120);
    machine_.mainLoop.runFor(seconds(2));
    processEvents();
    EXPECT_EQ(item("firefox"), row);
    EXPECT_EQ(window_.activeFocusItem(), row);
    EXPECT_DOUBLE_EQ(pane->property("contentY").toDouble(), 60);
}

TEST_F(StatsViewTest, ARefreshThatChangesNothingPaintsNothing) {
    showTab(timesheetTab);
    const auto before = picture();
    machine_.mainLoop.runFor(seconds(4));
    EXPECT_EQ(picture(), before);
}

TEST_F(StatsViewTest, AThemeSwitchRedressesTheOpenWindow) {
    show();
    processEvents();
    const auto dark = picture().pixelColor(4, 4);
    theme_.switchTo("editorial");
    processEvents();
    EXPECT_GT(picture().pixelColor(4, 4).lightness(), dark.lightness() + 100);
}

TEST_F(StatsViewTest, TheComparisonOfAPastDayIsLegibleInAThemeThatIsPutOnLater) {
    show();
    processEvents();
    click("previousDay");
    const auto dark = colorOf("comparison");
    EXPECT_EQ(dark, legible(dashboard_.overview()->comparisonColor()));
    theme_.switchTo("editorial");
    processEvents();
    EXPECT_NE(colorOf("comparison"), dark);
    EXPECT_EQ(colorOf("comparison"), legible(dashboard_.overview()->comparisonColor()));
}

TEST_F(StatsViewTest, ABreakAlertIsLegibleInAThemeThatIsPutOnWhileItStands) {
    show();
    processEvents();
    for (int second = 0; second < 7200; ++second)
        services_.wellbeing.breakReminder.tickActiveSecond(Seconds(7200));
    processEvents();
    const auto dark = colorOf("headline");
    theme_.switchTo("editorial");
    processEvents();
    const auto& palette = Style::of(engine_)->palette();
    EXPECT_NE(colorOf("headline"), dark);
    EXPECT_EQ(colorOf("headline"), legible(palette.tierDistracting));
    EXPECT_EQ(colorOf("sitting"), legible(palette.tierDistracting));
    EXPECT_EQ(colorOf("title"), legible(palette.tierProductive));
}

}  // namespace
}  // namespace tidewatch
