#include "shell/widgets/widget_manager.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "shell/widgets/widgets_world.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

using Texts = std::vector<std::string>;

class WidgetManagerTest : public WidgetsWorld {
protected:
    static constexpr auto system = WidgetKind::system;
    static constexpr auto goals = WidgetKind::goals;

    /// Whether the hub ticks.
    bool isHubRunning() {
        const auto tick = hub().tick();
        runFor(1s);
        return hub().tick() > tick;
    }

    /// The rows of the submenu; those that are checked with an asterisk.
    Texts widgetRows() {
        Texts rows;
        for (const auto& row : menu()) {
            if (row.title != "Widgets de escritorio") continue;
            for (const auto& each : row.children) rows.push_back(each.title + (each.checked ? "*" : ""));
        }
        return rows;
    }
};

TEST_F(WidgetManagerTest, TheMenuHasARowForEachKindWithItsSymbolCheckedWhileItIsShown) {
    launch();
    toggle(goals);
    EXPECT_EQ(widgetRows(), (Texts{"Productividad", "Sistema", "Racha & Análisis", "Metas & Estrellas*",
                                   "Test de Velocidad", "Proyecto Activo", "Top Apps", "Mini-Arcade"}));
    for (const auto& row : menu()) {
        if (row.title != "Widgets de escritorio") continue;
        EXPECT_EQ(row.children[0].symbol, "chart.pie.fill");
        EXPECT_EQ(row.children[7].symbol, "gamecontroller.fill");
    }
    toggle(goals);
    EXPECT_EQ(widgetRows()[3], "Metas & Estrellas");
}

TEST_F(WidgetManagerTest, ShowStartsTheHubThenMakesTheWindowThenShowsItThenStoresIt) {
    launch();
    surfaces_.clearLog();
    const auto timers = machine_.mainLoop.timerCount();
    Texts seen;
    surfaces_.onWidgetMade([&](WidgetKind) {
        seen.push_back(machine_.mainLoop.timerCount() > timers ? "started" : "standing");
        seen.push_back(stored());
    });
    toggle(goals);
    EXPECT_THAT(seen, ElementsAre("started", "(none)"));
    EXPECT_EQ(surfaces_.log(), (ScreenLog{"make goals", "show goals"}));
    EXPECT_EQ(stored(), R"({"goals":{"visible":true,"scale":1}})");
}

TEST_F(WidgetManagerTest, ShowingTheSystemStartsItsMonitorBeforeItsWindowIsMade) {
    launch();
    int samples = 0;
    const auto connection = hub().monitor().changed.connect([&] { ++samples; });
    int before = 0;
    surfaces_.onWidgetMade([&](WidgetKind) { before = samples; });
    toggle(goals);
    EXPECT_EQ(samples, 0);
    toggle(system);
    EXPECT_EQ(before, 1);
    runFor(6s);
    EXPECT_EQ(samples, 4) << "every two seconds";
    toggle(goals);
    runFor(2s);
    EXPECT_EQ(samples, 5);
    toggle(system);
    runFor(6s);
    EXPECT_EQ(samples, 5);
}

TEST_F(WidgetManagerTest, HideHidesTheWindowThenStoresItAndTheLastOneStopsTheHub) {
    launch();
    toggle(goals);
    toggle(system);
    surfaces_.clearLog();
    toggle(goals);
    EXPECT_EQ(surfaces_.log(), ScreenLog{"hide goals"});
    EXPECT_EQ(stored(), R"({"system":{"visible":true,"scale":1},"goals":{"visible":false,"scale":1}})");
    EXPECT_TRUE(isHubRunning());
    toggle(system);
    EXPECT_FALSE(isHubRunning());
    EXPECT_EQ(stored(), R"({"system":{"visible":false,"scale":1},"goals":{"visible":false,"scale":1}})");
}

TEST_F(WidgetManagerTest, AWidgetThatIsHiddenKeepsItsPlaceAndComesBackThere) {
    store(R"({"goals":{"visible":true,"x":300,"y":200,"scale":1}})");
    launch();
    toggle(goals);
    EXPECT_EQ(stored(), R"({"goals":{"visible":false,"x":300,"y":200,"scale":1}})");
    toggle(goals);
    EXPECT_EQ(window(goals).origin(), (platform::Point{300, 200}));
    EXPECT_EQ(stored(), R"({"goals":{"visible":true,"x":300,"y":200,"scale":1}})");
}

TEST_F(WidgetManagerTest, RestoreVisibleShowsThoseThatWereVisibleInTheirOrderAfterTheEngineStarted) {
    store(R"({"arcade":{"visible":true,"scale":1},"clock":{"visible":true,"scale":1},)"
          R"("goals":{"visible":false,"scale":1},"system":{"visible":true,"scale":1}})");
    std::size_t timers = 0;
    bool asked = false;
    surfaces_.onWidgetMade([&](WidgetKind kind) {
        if (kind != system) return;
        timers = machine_.mainLoop.timerCount();
        asked = machine_.notifications.waitingRequests() > 0;
    });
    launch();
    EXPECT_EQ(surfaces_.log(), (ScreenLog{"fonts", "panel", "show panel", "status item", "make system",
                                          "show system", "make arcade", "show arcade"}));
    EXPECT_EQ(timers, 3U) << "the engine's, the hub's and the monitor's";
    EXPECT_FALSE(asked) << "the right to notify comes after the widgets";
    EXPECT_EQ(stored(), R"({"system":{"visible":true,"scale":1},"goals":{"visible":false,"scale":1},)"
                        R"("arcade":{"visible":true,"scale":1}})");
    EXPECT_TRUE(isHubRunning());
}

TEST_F(WidgetManagerTest, WithoutVisibleWidgetsNothingIsMadeStartedOrWritten) {
    store(R"({"goals":{"visible":false,"scale":1}})");
    launch();
    EXPECT_EQ(surfaces_.log(), (ScreenLog{"fonts", "panel", "show panel", "status item"}));
    EXPECT_FALSE(isHubRunning());
    EXPECT_EQ(stored(), R"({"goals":{"visible":false,"scale":1}})");
    EXPECT_EQ(machine_.mainLoop.timerCount(), 2U);
}

TEST_F(WidgetManagerTest, TheEndOfTheProgramLeavesTheWidgetsVisible) {
    launch();
    toggle(goals);
    program_->delegate.applicationWillTerminate();
    program_.reset();
    EXPECT_EQ(stored(), R"({"goals":{"visible":true,"scale":1}})");
    surfaces_.clearLog();
    launch();
    EXPECT_THAT(surfaces_.log(), testing::Contains("show goals"));
}

TEST_F(WidgetManagerTest, ShowingOneThatIsShownBringsItToTheFrontOnly) {
    launch();
    WidgetManager manager({.hub = hub(),
                           .mainLoop = machine_.mainLoop,
                           .broadcaster = program_->services.broadcaster,
                           .statistics = statistics_,
                           .windows = {.store = program_->services.widgets.store,
                                       .broadcaster = program_->services.broadcaster,
                                       .screens = machine_.screens,
                                       .surfaces = surfaces_,
                                       .openMenu = nullptr}});
    manager.show(goals);
    EXPECT_TRUE(manager.isVisible(goals));
    surfaces_.clearLog();
    const auto writes = machine_.files.writeCount();
    manager.show(goals);
    EXPECT_EQ(surfaces_.log(), ScreenLog{"show goals"});
    manager.restoreVisible();
    EXPECT_EQ(surfaces_.log(), ScreenLog{"show goals"}) << "it is shown already";
    EXPECT_EQ(machine_.files.writeCount(), writes);
    manager.hide(goals);
    manager.hide(goals);
    EXPECT_EQ(surfaces_.log(), (ScreenLog{"show goals", "hide goals"}));
}

TEST_F(WidgetManagerTest, AClickOnAnyWidgetButTheArcadeOpensTheStatisticsUnlessTheyAreOpen) {
    launch();
    for (const auto kind : allWidgetKinds()) toggle(kind);
    for (const auto kind : allWidgetKinds()) {
        statistics_.close();
        const int showings = statistics_.showings();
        click(kind);
        const int expected = kind == WidgetKind::arcade ? 0 : 1;
        EXPECT_EQ(statistics_.showings() - showings, expected) << rawValue(kind);
        click(kind);
        EXPECT_EQ(statistics_.showings() - showings, expected) << rawValue(kind);
    }
}

TEST_F(WidgetManagerTest, AClickIsHandedOnAndWritesNoCounters) {
    launch();
    toggle(goals);
    click(goals);
    statistics_.close();
    const auto writes = machine_.files.writeCount();
    const auto& gestures = window(goals).gestures();
    gestures.mouseDown({1, 1});
    gestures.mouseUp({1, 1});
    EXPECT_FALSE(statistics_.isVisible());
    machine_.mainLoop.run();
    EXPECT_TRUE(statistics_.isVisible());
    EXPECT_EQ(machine_.files.writeCount(), writes);
}

TEST_F(WidgetManagerTest, AClickThatIsPendingWhenTheProgramIsGoneOpensNothing) {
    launch();
    toggle(goals);
    const auto& gestures = window(goals).gestures();
    gestures.mouseDown({1, 1});
    gestures.mouseUp({1, 1});
    program_.reset();
    machine_.mainLoop.run();
    EXPECT_EQ(statistics_.showings(), 0);
}

TEST_F(WidgetManagerTest, AFullDiskCostsNoWidget) {
    launch();
    machine_.files.setDisk(platform::MemoryFileSystem::Disk::full);
    toggle(goals);
    EXPECT_EQ(widgetRows()[3], "Metas & Estrellas*");
    EXPECT_EQ(stored(), "(none)");
    machine_.files.setDisk(platform::MemoryFileSystem::Disk::roomy);
    click(goals);
    EXPECT_EQ(stored(), R"({"goals":{"visible":true,"x":1598,"y":138,"scale":1}})");
}

TEST_F(WidgetManagerTest, AFileThatGoesMissingIsRestoredWithTheCounters) {
    launch();
    toggle(goals);
    const auto text = stored();
    machine_.files.removeDirectory("/home/user/.tidewatch");
    EXPECT_EQ(stored(), "(none)");
    runFor(31s);
    EXPECT_EQ(stored(), text);
}

}  // namespace
}  // namespace tidewatch
