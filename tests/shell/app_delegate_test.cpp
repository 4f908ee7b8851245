#include "shell/app_delegate.h"

#include <gtest/gtest.h>

#include "app/program_world.h"

namespace tidewatch {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;

constexpr auto hiddenClockHint =
    "No hay bandeja del sistema: para volver a ver el reloj y su menú, abre Tidewatch otra vez.";

class AppDelegateTest : public ProgramWorld {
protected:
    void clickPanel() {
        surfaces_.panel().gestures().mouseDown({100, 100});
        surfaces_.panel().gestures().mouseUp({100, 100});
        machine_.mainLoop.run();
    }
};

TEST_F(AppDelegateTest, LaunchesInTheStatedOrder) {
    launch();
    EXPECT_EQ(surfaces_.log(), (ScreenLog{"fonts", "panel", "show panel", "status item"}));
    EXPECT_EQ(machine_.mainLoop.timerCount(), 2U);
}

TEST_F(AppDelegateTest, ThePanelHasTheThemesSizeTimesTheScale) {
    machine_.preferences.setReal("sizeScale", 0.5);
    machine_.preferences.setText("activeThemeID", "minimal");
    launch();
    EXPECT_EQ(surfaces_.panel().panelSize(), (PanelSize{90, 35}));
}

TEST_F(AppDelegateTest, StartedHiddenThePanelExistsAndShowsOnlyAfterToggleVisible) {
    machine_.preferences.setBoolean("windowVisible", false);
    launch();
    EXPECT_FALSE(surfaces_.panel().isVisible());
    program_->theme.switchTo("hacker");
    runFor(1s);
    EXPECT_EQ(surfaces_.panel().panelSize(), (PanelSize{65, 27.5}));
    EXPECT_FALSE(surfaces_.panel().isVisible());
    EXPECT_EQ(program_->services.engine.todaySeconds(), Seconds(1));
}

TEST_F(AppDelegateTest, EachSecondsTickRunsBeforeTheRefresh) {
    launch();
    std::vector<std::string> order;
    const auto ticks = program_->services.engine.changed.connect([&] { order.emplace_back("tick"); });
    surfaces_.statusItem().onTitle([&] { order.emplace_back("refresh"); });
    runFor(3s);
    EXPECT_EQ(order, (std::vector<std::string>{"tick", "refresh", "tick", "refresh", "tick", "refresh"}));
}

TEST_F(AppDelegateTest, ARefreshThatIsWaitingWhenTheDelegateGoesDoesNothing) {
    launch();
    machine_.clock.advance(1s);
    machine_.mainLoop.fireDueTimers();
    program_.reset();
    machine_.mainLoop.run();
}

TEST_F(AppDelegateTest, WhileAMenuIsOpenTheTitleStandsStillButTicksGoOn) {
    launch();
    runFor(1s);
    const int titles = surfaces_.statusItem().titlesSet();
    machine_.mainLoop.setMenu(platform::FakeMainLoop::Menu::open);
    runFor(5s);
    EXPECT_EQ(surfaces_.statusItem().titlesSet(), titles);
    EXPECT_EQ(program_->services.engine.todaySeconds(), Seconds(6));
}

TEST_F(AppDelegateTest, TheRefreshSetsTheRunningTotalUnderTheClocksKeyBetweenTheBoundaryAndTheTick) {
    launch();
    runFor(10s);
    program_->services.engine.stop();
    machine_.clock.setNow(sys_days(2026y / 1 / 16) + 1ms);
    runFor(1s);
    EXPECT_EQ(program_->services.counting.days.seconds(DayKey("2026-01-16")), Seconds(10));
}

TEST_F(AppDelegateTest, ALeftClickOnTheStatusItemWritesTheStoresAndOpensTheStatisticsWindow) {
    launch();
    runFor(5s);
    surfaces_.statusItem().click(StatusItem::Click::left);
    EXPECT_TRUE(statistics_.isVisible());
    EXPECT_TRUE(surfaces_.statusItem().menus().empty());
    EXPECT_EQ(file("today.json"), "{\n  \"2026-01-15\" : 5\n}");
    EXPECT_EQ(file("apps.json"), "{\n  \"2026-01-15\" : {\n    \"org.example.Editor\" : 5\n  }\n}");
}

TEST_F(AppDelegateTest, ALeftClickWithTheStatisticsWindowOpenShowsTheMenuAndDoesNotCloseIt) {
    launch();
    statistics_.showWindow();
    surfaces_.statusItem().click(StatusItem::Click::left);
    EXPECT_TRUE(statistics_.isVisible());
    EXPECT_EQ(surfaces_.statusItem().menus().size(), 1U);
}

TEST_F(AppDelegateTest, ARightClickOpensTheMenu) {
    launch();
    surfaces_.statusItem().click(StatusItem::Click::right);
    EXPECT_FALSE(statistics_.isVisible());
    EXPECT_EQ(surfaces_.statusItem().menus().size(), 1U);
}

TEST_F(AppDelegateTest, ARightClickOnThePanelOpensTheMenu) {
    launch();
    surfaces_.panel().gestures().menuRequested();
    EXPECT_EQ(surfaces_.statusItem().menus().size(), 1U);
}

TEST_F(AppDelegateTest, AClickOnThePanelWritesTheStoresAndOpensTheStatisticsWindow) {
    launch();
    runFor(3s);
    clickPanel();
    EXPECT_TRUE(statistics_.isVisible());
    EXPECT_EQ(file("today.json"), "{\n  \"2026-01-15\" : 3\n}");
}

TEST_F(AppDelegateTest, AClickOnThePanelWhileTheStatisticsWindowIsVisibleClosesItAndWritesNothing) {
    launch();
    runFor(3s);
    statistics_.showWindow();
    const int writes = machine_.files.writeCount();
    clickPanel();
    EXPECT_FALSE(statistics_.isVisible());
    EXPECT_EQ(machine_.files.writeCount(), writes);
}

TEST_F(AppDelegateTest, AReopenShowsTheStatisticsWindowWhetherOrNotItIsVisible) {
    launch();
    runFor(2s);
    program_->delegate.applicationShouldHandleReopen();
    EXPECT_TRUE(statistics_.isVisible());
    program_->delegate.applicationShouldHandleReopen();
    EXPECT_TRUE(statistics_.isVisible());
    EXPECT_EQ(statistics_.showings(), 2) << "each time it is brought to the front";
    EXPECT_EQ(file("today.json"), "{\n  \"2026-01-15\" : 2\n}");
}

TEST_F(AppDelegateTest, AReopenLeavesAHiddenPanelHidden) {
    launch();
    ASSERT_TRUE(choose("Ocultar ventana"));
    program_->delegate.applicationShouldHandleReopen();
    EXPECT_TRUE(statistics_.isVisible());
    EXPECT_FALSE(surfaces_.panel().isVisible());
    EXPECT_TRUE(surfaces_.hints().empty());
}

TEST_F(AppDelegateTest, TheEndWritesEverythingAndARestartContinuesTheDay) {
    launch();
    runFor(17s);
    program_->delegate.applicationWillTerminate();
    launch();
    EXPECT_EQ(program_->services.engine.todaySeconds(), Seconds(17));
    EXPECT_EQ(program_->services.engine.liveSeconds(), Seconds(0));
    runFor(1s);
    program_->delegate.applicationWillTerminate();
    EXPECT_EQ(file("apps.json"), "{\n  \"2026-01-15\" : {\n    \"org.example.Editor\" : 18\n  }\n}");
}

TEST_F(AppDelegateTest, ASessionThatIsAboutToEndIsWrittenAndCountingGoesOn) {
    launch();
    runFor(4s);
    program_->delegate.flushAllStores();
    EXPECT_EQ(file("today.json"), "{\n  \"2026-01-15\" : 4\n}");
    runFor(1s);
    EXPECT_EQ(program_->services.engine.todaySeconds(), Seconds(5));
}

TEST_F(AppDelegateTest, NothingBookedShowsTheDash) {
    launch();
    EXPECT_EQ(surfaces_.statusItem().title().text(), "—");
    EXPECT_EQ(surfaces_.statusItem().title().mood, StatusTitle::Mood::none);
}

TEST_F(AppDelegateTest, EverySecondIsBookedEverywhereItBelongs) {
    launch();
    program_->services.projects.store.setActive(program_->services.projects.store.addProject("Film").id);
    runFor(31s);
    program_->delegate.applicationWillTerminate();
    const auto id = program_->services.projects.store.activeProjectId()->text();
    EXPECT_EQ(file("today.json"), "{\n  \"2026-01-15\" : 31\n}");
    EXPECT_EQ(file("apps.json"), "{\n  \"2026-01-15\" : {\n    \"org.example.Editor\" : 31\n  }\n}");
    EXPECT_EQ(file("hours.json"), "{\n  \"2026-01-15 09\" : {\n    \"org.example.Editor\" : 31\n  }\n}");
    EXPECT_EQ(file("minutes.json"), "{\n  \"2026-01-15 09:00\" : {\n    \"org.example.Editor\" : 31\n  }\n}");
    EXPECT_EQ(file("project_time.json"), "{\n  \"2026-01-15\" : {\n    \"" + id +
                                             "\" : {\n      \"org.example.Editor\" : 31\n    }\n  }\n}");
}

TEST_F(AppDelegateTest, AReopenLeavesTheMinuteAndProjectFilesAlone) {
    launch();
    runFor(2s);
    program_->delegate.applicationShouldHandleReopen();
    EXPECT_NE(file("hours.json"), "(none)");
    EXPECT_EQ(file("minutes.json"), "(none)");
    EXPECT_EQ(file("project_time.json"), "(none)");
}

TEST_F(AppDelegateTest, AChangeOfProjectsShowsAtOnce) {
    launch();
    program_->services.projects.store.setActive(
        program_->services.projects.store.addProject("LMN Juvenil").id);
    machine_.mainLoop.run();
    EXPECT_EQ(surfaces_.statusItem().title().text(), "— · LMN Juvenil");
}

TEST_F(AppDelegateTest, AMilestoneIsNotifiedOnceEvenAcrossARestart) {
    auto goals = GoalSettings();
    goals.dailyHours = 10.0 / 3600;
    launch();
    program_->services.goals.store.setSettings(goals);
    program_->services.goals.store.save();
    runFor(20s);
    program_->delegate.applicationWillTerminate();
    launch();
    runFor(20s);
    std::vector<std::string> titles;
    for (const auto& message : machine_.notifications.delivered()) titles.push_back(message.title);
    EXPECT_EQ(titles, (std::vector<std::string>{"Casi lo logras", "Meta diaria cumplida ⭐"}));
}

TEST_F(AppDelegateTest, AMissingTrayIsShownOnce) {
    launch();
    surfaces_.statusItem().setShown(false);
    runFor(10s);
    EXPECT_TRUE(surfaces_.hints().empty());
    runFor(60s);
    EXPECT_EQ(surfaces_.hints(),
              std::vector<std::string>{
                  "No hay bandeja del sistema: el menú se abre con el botón derecho sobre el reloj."});
}

TEST_F(AppDelegateTest, TheFirstStartEverSaysWhatIsCountedAndWhereTheIconIs) {
    machine_.preferences.remove("notif-welcome");
    launch();
    runFor(60s);
    program_->delegate.applicationWillTerminate();
    launch();
    runFor(60s);
    EXPECT_EQ(
        machine_.notifications.delivered(),
        (std::vector<platform::UserNotification>{
            {.title = "Tidewatch ya cuenta tu tiempo",
             .body = "Apunta cada segundo que trabajas, por día, hora, aplicación y proyecto; si paras, "
                     "espera. Su icono está en la bandeja: un clic abre las estadísticas; el botón "
                     "derecho, el menú. Tus datos no salen de este equipo."}}));
}

TEST_F(AppDelegateTest, AFirstStartWithoutATrayPointsToTheClock) {
    machine_.preferences.remove("notif-welcome");
    launch();
    surfaces_.statusItem().setShown(false);
    runFor(10s);
    EXPECT_TRUE(machine_.notifications.delivered().empty());
    runFor(60s);
    ASSERT_EQ(machine_.notifications.delivered().size(), 1U);
    EXPECT_EQ(
        machine_.notifications.delivered().front().body,
        "Apunta cada segundo que trabajas, por día, hora, aplicación y proyecto; si paras, espera. "
        "Sobre su reloj, un clic abre las estadísticas; el botón derecho, el menú. Tus datos no salen de "
        "este equipo.");
    surfaces_.statusItem().setShown(true);
    runFor(60s);
    EXPECT_EQ(machine_.notifications.delivered().size(), 1U);
}

TEST_F(AppDelegateTest, AClockThatIsHiddenWithoutATrayComesBackAtASecondStart) {
    launch();
    surfaces_.statusItem().setShown(false);
    ASSERT_TRUE(choose("Ocultar ventana"));
    EXPECT_EQ(surfaces_.hints(), std::vector<std::string>{hiddenClockHint});
    ASSERT_FALSE(surfaces_.panel().isVisible());
    program_->delegate.applicationShouldHandleReopen();
    EXPECT_TRUE(surfaces_.panel().isVisible());
    EXPECT_TRUE(program_->services.counting.settings.windowVisible());
    program_->delegate.applicationShouldHandleReopen();
    EXPECT_TRUE(surfaces_.panel().isVisible());
    EXPECT_EQ(surfaces_.hints().size(), 1U);
}

TEST_F(AppDelegateTest, AMissingTrayIsNotSaidToHaveItsMenuOnAHiddenClock) {
    machine_.preferences.setBoolean("windowVisible", false);
    launch();
    surfaces_.statusItem().setShown(false);
    runFor(60s);
    EXPECT_EQ(surfaces_.hints(), std::vector<std::string>{hiddenClockHint});
    EXPECT_FALSE(surfaces_.panel().isVisible());
}

TEST_F(AppDelegateTest, ATrayThatComesLateIsNotMissed) {
    launch();
    surfaces_.statusItem().setShown(false);
    runFor(9s);
    surfaces_.statusItem().setShown(true);
    runFor(60s);
    EXPECT_TRUE(surfaces_.hints().empty());
}

}  // namespace
}  // namespace tidewatch
