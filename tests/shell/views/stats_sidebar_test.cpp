// The panes beside the tabs: always there in a wide window, folded in a narrow one.

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>

#include "shell/views/stats_presenter_fixture.h"
#include "shell/views/stats_view_fixture.h"

namespace tidewatch {
namespace {

constexpr QSize wide{1041, 700};
constexpr QSize narrow{1040, 700};

struct StatsSidebarTest : StatsViewTest {
    [[nodiscard]] SidebarPresenter& sidebar() { return statistics_.system().sidebarPanels(); }
    [[nodiscard]] bool isShown() const {
        return item("overview") != nullptr && item("overview")->isVisible();
    }
    [[nodiscard]] static QRectF placeOf(const QQuickItem& shown) {
        return shown.mapRectToScene({0, 0, shown.width(), shown.height()});
    }
};

TEST_F(StatsPresenterTest, WithoutAViewNothingBesideTheTabsIsShown) {
    appear();
    EXPECT_FALSE(statistics_.system().sidebarPanels().isVisible());
    EXPECT_EQ(machine_.counters.processReadings, 0);
}

TEST_F(StatsPresenterTest, ThePanesBesideTheTabsAreFoldedWhereTheTabsWouldBeTooNarrow) {
    appear();
    presenter_.setWidth(1041);
    EXPECT_FALSE(presenter_.isFolded());
    EXPECT_TRUE(presenter_.besideShown());
    EXPECT_TRUE(statistics_.system().sidebarPanels().isVisible());
    presenter_.toggleBeside();
    EXPECT_TRUE(presenter_.besideShown());
    presenter_.setWidth(1040);
    EXPECT_TRUE(presenter_.isFolded());
    EXPECT_FALSE(presenter_.besideShown());
    EXPECT_FALSE(statistics_.system().sidebarPanels().isVisible());
    EXPECT_EQ(presenter_.foldText(), "Mostrar el panel");
    presenter_.toggleBeside();
    EXPECT_TRUE(statistics_.system().sidebarPanels().isVisible());
    EXPECT_EQ(presenter_.foldText(), "Ocultar el panel");
    presenter_.setWidth(1041);
    presenter_.setWidth(1040);
    EXPECT_FALSE(presenter_.besideShown());
}

TEST_F(StatsPresenterTest, TheMachineIsSampledOnlyWhileTheWindowShowsIt) {
    machine_.counters.processes = {{"code", 1, 1}};
    presenter_.setWidth(1360);
    machine_.mainLoop.runFor(std::chrono::seconds(30));
    EXPECT_EQ(machine_.counters.processReadings, 0);
    appear();
    machine_.mainLoop.runFor(std::chrono::seconds(6));
    EXPECT_EQ(machine_.counters.processReadings, 2);
    presenter_.disappear();
    machine_.mainLoop.runFor(std::chrono::seconds(30));
    EXPECT_EQ(machine_.counters.processReadings, 2);
}

TEST_F(StatsPresenterTest, WhileTheWindowIsMinimizedTheMachineIsNotSampled) {
    presenter_.setWidth(1360);
    appear();
    presenter_.setMinimized(true);
    machine_.mainLoop.runFor(std::chrono::seconds(30));
    EXPECT_EQ(machine_.counters.processReadings, 1);
    presenter_.setMinimized(false);
    machine_.mainLoop.runFor(std::chrono::seconds(6));
    EXPECT_EQ(machine_.counters.processReadings, 3);
}

TEST_F(StatsPresenterTest, AMinimizedWindowThatWasClosedSamplesWhenItComesBack) {
    presenter_.setWidth(1360);
    appear();
    presenter_.setMinimized(true);
    presenter_.disappear();
    appear();
    machine_.mainLoop.runFor(std::chrono::seconds(6));
    EXPECT_EQ(machine_.counters.processReadings, 3);
}

TEST_F(StatsPresenterTest, ASpeedTestGoesOnInAMinimizedWindow) {
    presenter_.setWidth(1360);
    appear();
    services_.machine.speedTester.startTest();
    presenter_.setMinimized(true);
    EXPECT_EQ(services_.machine.speedTester.phase(), SpeedTester::Phase::downloading);
    presenter_.disappear();
    EXPECT_NE(services_.machine.speedTester.phase(), SpeedTester::Phase::downloading);
}

TEST_F(StatsPresenterTest, FoldedTheMachineIsSampledOnlyInItsTab) {
    presenter_.setWidth(900);
    appear();
    machine_.mainLoop.runFor(std::chrono::seconds(6));
    EXPECT_EQ(machine_.counters.processReadings, 0);
    showTab(systemTab);
    machine_.mainLoop.runFor(std::chrono::seconds(6));
    EXPECT_EQ(machine_.counters.processReadings, 2);
    presenter_.selectTab(diskTab);
    machine_.mainLoop.runFor(std::chrono::seconds(6));
    EXPECT_EQ(machine_.counters.processReadings, 2);
}

TEST_F(StatsPresenterTest, OpenedAndClosedTheWindowComesBackFolded) {
    presenter_.setWidth(900);
    appear();
    presenter_.toggleBeside();
    presenter_.disappear();
    EXPECT_FALSE(statistics_.system().sidebarPanels().isVisible());
    appear();
    EXPECT_FALSE(presenter_.besideShown());
}

TEST_F(StatsSidebarTest, TheWindowSaysThatItIsMinimized) {
    show(wide);
    EXPECT_FALSE(presenter_.isMinimized());
    window_.showMinimized();
    EXPECT_TRUE(presenter_.isMinimized());
    window_.showNormal();
    EXPECT_FALSE(presenter_.isMinimized());
}

TEST_F(StatsSidebarTest, InAWideWindowItIsBesideTheTabs) {
    show(wide);
    processEvents();
    ASSERT_TRUE(isShown());
    EXPECT_EQ(placeOf(*item("overview")), QRectF(821, 0, 220, 700));
    EXPECT_FALSE(item("fold")->isVisible());
    EXPECT_FALSE(item("outside")->isVisible());
}

TEST_F(StatsSidebarTest, InANarrowWindowAButtonBringsItBackAboveTheTab) {
    show(narrow);
    processEvents();
    EXPECT_FALSE(isShown());
    EXPECT_EQ(item("overview"), nullptr);
    ASSERT_TRUE(item("fold")->isVisible());
    EXPECT_EQ(QAccessible::queryAccessibleInterface(item("fold"))->text(QAccessible::Name),
              "Mostrar el panel");
    click("fold");
    EXPECT_TRUE(isShown());
    EXPECT_EQ(placeOf(*item("overview")), QRectF(820, 0, 220, 700));
    EXPECT_EQ(placeOf(*item("tabs")).left(), 28);
}

TEST_F(StatsSidebarTest, EscapeAndAClickBesideItFoldItAgain) {
    show(narrow);
    processEvents();
    for (const bool byKey : {true, false}) {
        presenter_.toggleBeside();
        processEvents();
        ASSERT_TRUE(isShown());
        if (byKey) {
            key(Qt::Key_Escape);
        } else {
            const int tab = presenter_.tabIndex();
            QTest::mouseClick(&window_, Qt::LeftButton, {}, middle(*item("tabs")->childItems().at(goalsTab)));
            processEvents();
            EXPECT_EQ(presenter_.tabIndex(), tab) << "the tabs below are not to be reached";
        }
        EXPECT_FALSE(isShown());
        EXPECT_TRUE(window_.isVisible());
    }
}

TEST_F(StatsSidebarTest, TheKeyboardGoesWithItAndComesBack) {
    show(narrow);
    processEvents();
    item("fold")->forceActiveFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    ASSERT_TRUE(isShown());
    auto* focused = window_.activeFocusItem();
    ASSERT_NE(focused, nullptr);
    EXPECT_TRUE(item("overview")->isAncestorOf(focused) || item("overview") == focused);
    key(Qt::Key_Escape);
    EXPECT_FALSE(isShown());
    EXPECT_TRUE(item("fold")->hasActiveFocus());
}

TEST_F(StatsSidebarTest, ThePanesOfTheOtherRoomsAreBelowItsRows) {
    show();
    processEvents();
    ASSERT_NE(showing("CLAUDE · MAX"), nullptr);
    ASSERT_NE(item("gate"), nullptr);
    const double claude = placeOf(*showing("CLAUDE · MAX")).top();
    EXPECT_GT(claude, placeOf(*item("Test Speed")).bottom());
    EXPECT_GT(placeOf(*item("gate")).top(), claude);
    EXPECT_EQ(itemsOf("ClaudeSidebarCard"), 1);
    EXPECT_EQ(itemsOf("GamesPanel"), 1);
}

TEST_F(StatsSidebarTest, APanelHidesThemAndTheWindowKeepsItsLayout) {
    show();
    processEvents();
    const auto tabs = placeOf(*item("tabs"));
    sidebar().select(SysPanel::cpu);
    processEvents();
    EXPECT_EQ(itemsOf("GamesPanel"), 0);
    EXPECT_EQ(placeOf(*item("tabs")), tabs);
    EXPECT_EQ(placeOf(*item("detail")), QRectF(1140, 0, 220, 1000));
}

}  // namespace
}  // namespace tidewatch
