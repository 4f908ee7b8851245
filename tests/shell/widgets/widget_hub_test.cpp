#include "shell/widgets/widget_hub.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

#include "app/program_world.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

/// The hub of the whole program, with nothing booked before.
class WidgetHubTest : public ProgramWorld {
protected:
    WidgetHubTest() { launch(); }

    [[nodiscard]] WidgetHub& hub() { return program_->services.widgets.hub; }
    [[nodiscard]] Services& services() { return program_->services; }
    void work(const char* app, std::chrono::seconds time) {
        machine_.frontmost.set(AppId(app));
        runFor(time);
    }
};

TEST_F(WidgetHubTest, TicksOnceASecondWhileStarted) {
    int announced = 0;
    const auto connection = hub().changed.connect([&] { ++announced; });
    runFor(5s);
    EXPECT_EQ(hub().tick(), 0);
    hub().start();
    EXPECT_EQ(hub().tick(), 0);
    runFor(3s);
    EXPECT_EQ(hub().tick(), 3);
    EXPECT_EQ(announced, 3);
    hub().stop();
    runFor(5s);
    EXPECT_EQ(hub().tick(), 3);
    hub().start();
    runFor(2s);
    EXPECT_EQ(hub().tick(), 5) << "it goes on where it stood";
    EXPECT_EQ(announced, 5);
}

TEST_F(WidgetHubTest, StartedTwiceItTicksOnceASecond) {
    const auto timers = machine_.mainLoop.timerCount();
    hub().start();
    hub().start();
    EXPECT_EQ(machine_.mainLoop.timerCount(), timers + 1);
    runFor(3s);
    EXPECT_EQ(hub().tick(), 3);
    hub().stop();
    EXPECT_EQ(machine_.mainLoop.timerCount(), timers);
}

TEST_F(WidgetHubTest, TicksWhileAMenuIsOpen) {
    hub().start();
    machine_.mainLoop.setMenu(platform::FakeMainLoop::Menu::open);
    runFor(3s);
    EXPECT_EQ(hub().tick(), 3);
}

TEST_F(WidgetHubTest, TheSecondOfATickIsBookedWhenItIsAnnounced) {
    std::vector<std::int64_t> booked;
    const auto connection =
        hub().changed.connect([&] { booked.push_back(services().engine.todaySeconds().count()); });
    hub().start();
    runFor(3s);
    EXPECT_THAT(booked, ElementsAre(1, 2, 3));
}

TEST_F(WidgetHubTest, ATickThatIsPendingWhenTheHubIsGoneTouchesNothing) {
    hub().start();
    machine_.clock.advance(1s);
    machine_.mainLoop.fireDueTimers();
    program_.reset();
    machine_.mainLoop.run();
}

TEST_F(WidgetHubTest, TheScoreIsThatOfToday) {
    EXPECT_EQ(hub().todayScore(), ProductivityScore());
    services().classification.categories.setCategory(Category::development, AppId("org.example.Editor"));
    work("org.example.Editor", 90s);
    EXPECT_EQ(hub().todayScore().productiveSeconds, Seconds(90));
    EXPECT_EQ(hub().todayScore().displayString(), "100%");
    machine_.clock.advance(24h);
    EXPECT_EQ(hub().todayScore(), ProductivityScore());
}

TEST_F(WidgetHubTest, TheTopAppsAreThoseOfTodayCutToTheLimit) {
    EXPECT_TRUE(hub().topApps(4).empty());
    machine_.applications.registerApplication(AppId("org.example.Editor"),
                                              {.name = "Editor", .icon = "editor", .categories = {}});
    services().classification.categories.setCategory(Category::development, AppId("org.example.Editor"));
    work("org.example.Editor", 5s);
    work("b", 9s);
    work("c", 7s);
    work("d", 3s);
    work("e", 1s);
    const auto apps = hub().topApps(4);
    std::vector<std::string> names;
    for (const auto& app : apps) names.push_back(app.name + " " + std::to_string(app.seconds.count()));
    EXPECT_THAT(names, ElementsAre("b 9", "c 7", "Editor 5", "d 3"));
    EXPECT_EQ(apps[2].category, Category::development);
    EXPECT_EQ(apps[2].tier, Tier::productive);
    EXPECT_EQ(hub().topApps(9).size(), 5U);
    EXPECT_TRUE(hub().topApps(0).empty());
}

TEST_F(WidgetHubTest, TheActiveProjectHasItsSecondsOfToday) {
    EXPECT_EQ(hub().activeProject(), std::nullopt);
    auto& projects = services().projects.store;
    const auto film = projects.addProject("Film");
    EXPECT_EQ(hub().activeProject(), std::nullopt);
    projects.setActive(film.id);
    EXPECT_EQ(hub().activeProject(), (WidgetHub::ActiveProject{"Film", Seconds(), film.colorHex}));
    work("b", 3s);
    work("c", 4s);
    EXPECT_EQ(hub().activeProject(), (WidgetHub::ActiveProject{"Film", Seconds(7), film.colorHex}));
    projects.setActive(std::nullopt);
    EXPECT_EQ(hub().activeProject(), std::nullopt);
}

TEST_F(WidgetHubTest, GoalsAndStarsAreThoseOfTheMoment) {
    GoalSettings goals;
    goals.dailyHours = 20.0 / 3600;
    services().goals.store.setSettings(goals);
    EXPECT_EQ(hub().starsToday(), 0);
    work("b", 20s);
    EXPECT_EQ(hub().goals(), services().goals.evaluator.evaluate());
    EXPECT_EQ(hub().goals()[0].currentSeconds, Seconds(20));
    EXPECT_EQ(hub().starsToday(), 3);
    EXPECT_EQ(hub().starsMonth(), 3);
    EXPECT_EQ(hub().streakDays(), 1);
}

TEST_F(WidgetHubTest, InsightsAreComputedAnewAfterEightTicks) {
    hub().start();
    EXPECT_EQ(hub().insights().totalSeconds, Seconds());
    work("b", 7s);
    EXPECT_EQ(hub().tick(), 7);
    EXPECT_EQ(hub().insights().totalSeconds, Seconds());
    work("b", 1s);
    EXPECT_EQ(hub().insights().totalSeconds, Seconds(8));
    work("b", 7s);
    EXPECT_EQ(hub().insights().totalSeconds, Seconds(8));
    work("b", 3s);
    EXPECT_EQ(hub().insights().totalSeconds, Seconds(18)) << "eight and more";
}

TEST_F(WidgetHubTest, WhileTheHubStandsInsightsAreNeverComputedAnew) {
    hub().start();
    work("b", 5s);
    EXPECT_EQ(hub().insights().totalSeconds, Seconds(5));
    hub().stop();
    work("b", 100s);
    EXPECT_EQ(hub().insights().totalSeconds, Seconds(5));
    hub().start();
    work("b", 8s);
    EXPECT_EQ(hub().insights().totalSeconds, Seconds(113));
}

TEST_F(WidgetHubTest, TheFirstInsightsAreComputedAtOnceAndThoseOfTheWeek) {
    work("b", 10s);
    EXPECT_EQ(hub().insights().totalSeconds, Seconds(10));
    EXPECT_EQ(hub().insights().range, InsightsRange::week);
}

// Their lists would be measured since each other's.
TEST_F(WidgetHubTest, TheMonitorLeavesTheListsOfProcessesToThatOfTheStatistics) {
    machine_.counters.processes = {{.name = "busy", .cpuPercent = 90, .resident = 1 << 20}};
    hub().monitor().start();
    runFor(12s);
    EXPECT_TRUE(hub().monitor().snap().topCpu.empty());
    services().machine.monitor.start();
    EXPECT_EQ(services().machine.monitor.snap().topCpu.size(), 1U);
}

TEST_F(WidgetHubTest, MonitorAndSpeedTesterAreNotThoseOfTheStatistics) {
    EXPECT_NE(&hub().monitor(), &services().machine.monitor);
    EXPECT_NE(&hub().speed(), &services().machine.speedTester);
}

}  // namespace
}  // namespace tidewatch
