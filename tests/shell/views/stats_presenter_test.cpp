// The window as a whole: its tabs, and when it flushes, reloads and refreshes.

#include <gtest/gtest.h>

#include <QJsonDocument>
#include <string>
#include <utility>

#include "shell/views/stats_presenter_fixture.h"
#include "tests/support/presenter_probe.h"

namespace tidewatch {
namespace {

using std::chrono::seconds;

TEST_F(StatsPresenterTest, AReclassificationReachesEveryTabAtTheReloadAfterIt) {
    bookBelievableWork();
    showTab(overviewTab);
    services_.classification.categories.setCategory(Category::games, AppId("code"));
    appear();
    EXPECT_NE(dashboard_.overview()->score(), "96%");
    EXPECT_EQ(dashboard_.overview()->distracting()->apps()->rowCount(), 3);
    presenter_.selectTab(detailsTab);
    EXPECT_EQ(dashboard_.details()->rows()->index(0).data(RowListModel::rowRole).value<AppDetails>().tier,
              "Distrayendo");
}

TEST_F(StatsPresenterTest, ShowingWritesFourFilesAndReloads) {
    book("code", today(), 9, 0, 600);
    bookProject(services_.projects.store.addProject("Web").id, "code", today(), 10);
    appear();
    EXPECT_EQ(dashboard_.overview()->productive()->time(), "10m");
    for (const auto& file :
         {machine_.todayJson, machine_.appsJson, machine_.hoursJson, machine_.minutesJson}) {
        EXPECT_TRUE(machine_.files.readFile(file).ok()) << file;
    }
    EXPECT_FALSE(machine_.files.readFile(machine_.projectTimeJson).ok());
}

TEST_F(StatsPresenterTest, TodayIsRefreshedEveryTwoSecondsUntilTheWindowCloses) {
    appear();
    book("code", today(), 9, 0, 60);
    machine_.mainLoop.runFor(seconds(2));
    EXPECT_EQ(dashboard_.overview()->productive()->time(), "1m");
    presenter_.disappear();
    book("code", today(), 9, 0, 60);
    machine_.mainLoop.runFor(seconds(10));
    EXPECT_EQ(dashboard_.overview()->productive()->time(), "1m");
}

TEST_F(StatsPresenterTest, APastDayStandsStill) {
    appear();
    dashboard_.header()->previousDay();
    book("code", daysAgo(1), 9, 0, 60);
    machine_.mainLoop.runFor(seconds(10));
    EXPECT_EQ(dashboard_.overview()->productive()->time(), "0s");
}

TEST_F(StatsPresenterTest, ABarGrowsBeyondTheCellWhereTenMinutesHoldMore) {
    book("code", today(), 9, 0, 1200);
    book("code", today(), 9, 10, 600);
    book("code", today(), 9, 20, 1);
    showTab(timesheetTab);
    const auto hour =
        dashboard_.timesheet()->hours()->index(0).data(RowListModel::rowRole).value<HourSheet>();
    EXPECT_DOUBLE_EQ(hour.buckets.at(0).height, 40);
    EXPECT_DOUBLE_EQ(hour.buckets.at(1).height, 20);
    EXPECT_DOUBLE_EQ(hour.buckets.at(2).height, 2);
}

TEST_F(StatsPresenterTest, ALongNameOfManyLinesIsOneShortLineInEveryTab) {
    const std::string name = "uno\ndos" + std::string(50'000, 'a');
    const auto shown = "uno dos" + QString(193, 'a') + "…";
    machine_.applications.registerApplication(AppId("endless"), {name, "", {"IDE"}});
    book("endless", today(), 9, 0, 60);
    bookProject(services_.projects.store.addProject(name).id, "endless", today(), 60);
    for (const auto& [tab, presenter] :
         std::initializer_list<std::pair<int, QObject*>>{{overviewTab, dashboard_.overview()->productive()},
                                                         {detailsTab, dashboard_.details()},
                                                         {timesheetTab, dashboard_.timesheet()},
                                                         {projectsTab, dashboard_.projects()}}) {
        showTab(tab);
        const auto all = QJsonDocument(test::probe(*presenter)).toJson();
        EXPECT_TRUE(all.contains(shown.toUtf8())) << tab;
        EXPECT_FALSE(all.contains(QByteArray(201, 'a'))) << tab;
        EXPECT_FALSE(all.contains("uno\\n")) << tab;
    }
}

TEST_F(StatsPresenterTest, TheTabsAreThoseThatExist) {
    EXPECT_EQ(presenter_.tabs(), QStringList({"Overview", "Metas", "Detalle", "Timesheet", "Proyectos",
                                              "Sistema", "Disco", "Claude"}));
    presenter_.selectTab(8);
    presenter_.selectTab(-1);
    EXPECT_EQ(presenter_.tabIndex(), 0);
}

}  // namespace
}  // namespace tidewatch
