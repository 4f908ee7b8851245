// Mouse and keyboard in the statistics window.

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>
#include <string>
#include <vector>

#include "shell/views/stats_view_fixture.h"

namespace tidewatch {
namespace {

TEST_F(StatsViewTest, AClickOnATabAndItsKeyShowIt) {
    show();
    processEvents();
    const auto tabs = item("tabs")->childItems();
    QTest::mouseClick(&window_, Qt::LeftButton, {}, middle(*tabs.at(goalsTab)));
    processEvents();
    EXPECT_EQ(presenter_.tabIndex(), goalsTab);
    EXPECT_NE(item("report"), nullptr);
    key(Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(presenter_.tabIndex(), detailsTab);
    EXPECT_NE(item("search"), nullptr);
    EXPECT_EQ(item("report"), nullptr);
    key(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(presenter_.tabIndex(), 0);
}

TEST_F(StatsViewTest, ArrowsGoFromTabToTab) {
    show();
    processEvents();
    item("tabs")->childItems().at(0)->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Right);
    key(Qt::Key_Right);
    EXPECT_EQ(presenter_.tabIndex(), 2);
    key(Qt::Key_Left);
    EXPECT_EQ(presenter_.tabIndex(), 1);
}

TEST_F(StatsViewTest, TheHeadStepsThroughTheDays) {
    show();
    processEvents();
    EXPECT_EQ(textOf("date"), "jue 15 ene");
    EXPECT_FALSE(item("nextDay")->isEnabled());
    click("previousDay");
    EXPECT_EQ(textOf("date"), "mié 14 ene");
    EXPECT_TRUE(item("nextDay")->isEnabled());
    click("today");
    EXPECT_EQ(textOf("date"), "jue 15 ene");
}

TEST_F(StatsViewTest, TheRangeIsPicked) {
    show();
    processEvents();
    auto* scroll = item("session");
    ASSERT_NE(scroll, nullptr);
    const auto week = textOf("sessionDay");
    dashboard_.insights()->selectRange(2);
    processEvents();
    EXPECT_EQ(item("ranges")->property("currentIndex").toInt(), 2);
    EXPECT_EQ(textOf("sessionDay"), dashboard_.insights()->sessionDay());
    EXPECT_FALSE(week.isEmpty());
}

TEST_F(StatsViewTest, AStepperChangesItsGoalByClickAndByKey) {
    showTab(goalsTab);
    auto* stepper = item("dailyHours");
    ASSERT_NE(stepper, nullptr);
    QTest::mouseClick(&window_, Qt::LeftButton, {}, middle(*stepper) + QPoint(15, 0));
    processEvents();
    EXPECT_DOUBLE_EQ(services_.goals.store.settings().dailyHours, 6.5);
    item("dailyHours")->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Down);
    EXPECT_DOUBLE_EQ(services_.goals.store.settings().dailyHours, 6);
    EXPECT_EQ(item("dailyHours"), stepper) << "the row was built anew";
}

TEST_F(StatsViewTest, TheSwitchAndTheReportButtonWork) {
    showTab(goalsTab);
    item("notifications")->childItems().first()->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    EXPECT_FALSE(services_.goals.store.settings().notificationsEnabled);
    click("report");
    EXPECT_EQ(reportsAsked_, 1);
}

TEST_F(StatsViewTest, ChipsAndSearchFilterTheTable) {
    showTab(detailsTab);
    const int all = dashboard_.details()->rows()->rowCount();
    click("productivo");
    EXPECT_LT(dashboard_.details()->rows()->rowCount(), all);
    click("productivo");
    EXPECT_EQ(dashboard_.details()->rows()->rowCount(), all);
    click("search");
    for (const auto letter : QString("firef")) QTest::keyClick(&window_, letter.toLatin1());
    processEvents();
    EXPECT_EQ(dashboard_.details()->rows()->rowCount(), 1);
    key(Qt::Key_Escape);
    EXPECT_EQ(dashboard_.details()->rows()->rowCount(), all);
}

TEST_F(StatsViewTest, TheRightButtonAndTheKeyboardAskForARowsMenu) {
    showTab(detailsTab);
    click("firefox", Qt::RightButton);
    ASSERT_EQ(menusAsked_, std::vector<std::string>{"firefox"});
    item("code")->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Return);
    key(Qt::Key_Down);
    key(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(menusAsked_, (std::vector<std::string>{"firefox", "code", "firefox"}));
}

TEST_F(StatsViewTest, EveryControlIsReachedByTheTabulator) {
    for (int tab = 0; tab < presenter_.tabs().size(); ++tab) {
        SCOPED_TRACE(presenter_.tabs()[tab].toStdString());
        showTab(tab);
        window_.requestActivate();
        QList<QQuickItem*> stops;
        for (int press = 0; press < 40; ++press) {
            QTest::keyClick(&window_, Qt::Key_Tab);
            auto* stop = window_.activeFocusItem();
            if (stop == nullptr || stops.contains(stop)) break;
            stops.append(stop);
            const auto* accessible = QAccessible::queryAccessibleInterface(stop);
            ASSERT_NE(accessible, nullptr) << stop->metaObject()->className();
        }
        // At least the day's buttons, the tabs and what the tab itself has.
        EXPECT_GE(stops.size(), 3);
    }
}

TEST_F(StatsViewTest, ABreakAlertLiesOverAllAndLetsNothingThroughButItsButton) {
    show();
    processEvents();
    for (int second = 0; second < 7200; ++second)
        services_.wellbeing.breakReminder.tickActiveSecond(Seconds(7200));
    processEvents();
    EXPECT_TRUE(presenter_.breakAlert()->alertActive());
    QTest::mouseClick(&window_, Qt::LeftButton, {}, middle(*item("tabs")->childItems().at(goalsTab)));
    click("previousDay");
    key(Qt::Key_3, Qt::ControlModifier);
    key(Qt::Key_Escape);
    EXPECT_EQ(presenter_.tabIndex(), 0);
    EXPECT_EQ(textOf("date"), "jue 15 ene");
    EXPECT_TRUE(presenter_.breakAlert()->alertActive());
    key(Qt::Key_Space);
    EXPECT_FALSE(presenter_.breakAlert()->alertActive());
    key(Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(presenter_.tabIndex(), detailsTab);
}

}  // namespace
}  // namespace tidewatch
