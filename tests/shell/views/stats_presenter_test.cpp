#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>

#include "shell/views/stats_scene.h"
#include "tests/support/presenter_probe.h"

namespace tidewatch {
namespace {

using std::chrono::hours;
using std::chrono::seconds;

constexpr int overviewTab = 0;
constexpr int goalsTab = 1;
constexpr int detailsTab = 2;
constexpr int timesheetTab = 3;
constexpr int projectsTab = 4;

struct StatsPresenterTest : testing::Test, StatsWorld {
    void showTab(int tab) {
        presenter_.selectTab(tab);
        appear();
    }

    [[nodiscard]] DayKey daysAgo(int days) const {
        return services_.counting.days.dayKey(machine_.clock.now() - hours(24 * days));
    }

    /// A day with this many productive and distracting seconds.
    void bookScore(const DayKey& day, int productive, int distracting) {
        if (productive > 0) book("code", day, 9, 0, productive);
        if (distracting > 0) book("supertuxkart", day, 9, 10, distracting);
    }

    [[nodiscard]] std::string comparison() { return dashboard_.overview()->comparison().toStdString(); }
};

void expectGolden(const QObject* presenter, const QString& name) {
    test::expectGolden(test::probe(*presenter), TIDEWATCH_GOLDEN_FOLDER "/" + name);
}

// The golden values of every tab.

TEST_F(StatsPresenterTest, OverviewOfAFullDay) {
    bookBelievableWork();
    showTab(overviewTab);
    expectGolden(dashboard_.overview(), "overview-full.json");
}

TEST_F(StatsPresenterTest, OverviewWithoutData) {
    showTab(overviewTab);
    expectGolden(dashboard_.overview(), "overview-empty.json");
}

TEST_F(StatsPresenterTest, OverviewOfOneApplication) {
    book("code", today(), 9, 0, 90);
    showTab(overviewTab);
    expectGolden(dashboard_.overview(), "overview-one.json");
}

TEST_F(StatsPresenterTest, InsightsOfAllThreeRanges) {
    bookBelievableWork();
    showTab(overviewTab);
    for (int range = 0; range < 3; ++range) {
        dashboard_.insights()->selectRange(range);
        expectGolden(dashboard_.insights(), QString("insights-%1.json").arg(range));
    }
}

TEST_F(StatsPresenterTest, InsightsWithoutData) {
    showTab(overviewTab);
    expectGolden(dashboard_.insights(), "insights-empty.json");
}

TEST_F(StatsPresenterTest, GoalsOfAFullDay) {
    bookBelievableWork();
    showTab(goalsTab);
    expectGolden(dashboard_.goals(), "goals-full.json");
}

TEST_F(StatsPresenterTest, GoalsWithoutData) {
    showTab(goalsTab);
    expectGolden(dashboard_.goals(), "goals-empty.json");
}

TEST_F(StatsPresenterTest, DetailsOfAFullDay) {
    bookBelievableWork();
    showTab(detailsTab);
    expectGolden(dashboard_.details(), "details-full.json");
}

TEST_F(StatsPresenterTest, TimesheetOfAFullDay) {
    bookBelievableWork();
    showTab(timesheetTab);
    expectGolden(dashboard_.timesheet(), "timesheet-full.json");
}

TEST_F(StatsPresenterTest, ProjectsOfAFullDay) {
    bookBelievableWork();
    showTab(projectsTab);
    expectGolden(dashboard_.projects(), "projects-full.json");
}

// The comparison line.

TEST_F(StatsPresenterTest, WithoutAScoreThereIsNoComparison) {
    bookScore(daysAgo(1), 100, 100);
    bookScore(today(), 29, 0);
    showTab(overviewTab);
    EXPECT_EQ(comparison(), "");
}

TEST_F(StatsPresenterTest, YesterdayIsComparedWithFirst) {
    bookScore(daysAgo(1), 50, 50);
    bookScore(today(), 75, 25);
    showTab(overviewTab);
    EXPECT_EQ(comparison(), "+25% vs ayer");
    EXPECT_EQ(dashboard_.overview()->comparisonColor().name(), "#7bd88f");
}

TEST_F(StatsPresenterTest, ALowerScoreHasItsOwnMinusSignInTheDistractingColour) {
    bookScore(daysAgo(1), 75, 25);
    bookScore(today(), 50, 50);
    showTab(overviewTab);
    EXPECT_EQ(comparison(), "-25% vs ayer");
    EXPECT_EQ(dashboard_.overview()->comparisonColor().name(), "#d15757");
}

TEST_F(StatsPresenterTest, WithoutYesterdayTheMeanOfTheWeekIsComparedWith) {
    bookScore(daysAgo(3), 50, 50);
    bookScore(daysAgo(5), 60, 40);
    bookScore(today(), 75, 25);
    showTab(overviewTab);
    EXPECT_EQ(comparison(), "+20% vs prom 7d");
}

TEST_F(StatsPresenterTest, WithNoPreviousScoreAndNoMeanThereIsNoComparison) {
    bookScore(today(), 75, 25);
    showTab(overviewTab);
    EXPECT_EQ(comparison(), "");
}

TEST_F(StatsPresenterTest, ADeltaOfZeroPrintsAPlusSignInTheProductiveColour) {
    bookScore(daysAgo(1), 60, 40);
    bookScore(today(), 60, 40);
    showTab(overviewTab);
    EXPECT_EQ(comparison(), "+0% vs ayer");
    EXPECT_EQ(dashboard_.overview()->comparisonColor().name(), "#7bd88f");
}

// The hours.

[[nodiscard]] double heightOf(OverviewPresenter* overview, int hour) {
    return overview->hours()->index(hour).data(RowListModel::rowRole).value<HourBar>().height;
}

TEST_F(StatsPresenterTest, AQuietDaysBarsStayLow) {
    book("code", today(), 9, 0, 10);
    book("code", today(), 10, 0, 30);
    book("code", today(), 11, 0, 40);
    showTab(overviewTab);
    EXPECT_DOUBLE_EQ(heightOf(dashboard_.overview(), 9), 0.04);
    EXPECT_DOUBLE_EQ(heightOf(dashboard_.overview(), 10), 0.05);
    EXPECT_NEAR(heightOf(dashboard_.overview(), 11), 40.0 / 600, 1e-9);
}

TEST_F(StatsPresenterTest, HoursAreLabelledTwelveAtMidnightAndAtNoon) {
    showTab(overviewTab);
    const auto label = [&](int hour) {
        return dashboard_.overview()->hours()->index(hour).data(RowListModel::rowRole).value<HourBar>().label;
    };
    EXPECT_EQ(label(0), "12a");
    EXPECT_EQ(label(11), "11a");
    EXPECT_EQ(label(12), "12p");
    EXPECT_EQ(label(23), "11p");
}

// The look back.

TEST_F(StatsPresenterTest, ASessionAcrossMidnightIsOneSession) {
    const auto yesterday = daysAgo(1);
    for (int minute : {40, 50}) book("code", yesterday, 23, minute, 600);
    for (int minute : {0, 10}) book("code", today(), 0, minute, 600);
    showTab(overviewTab);
    EXPECT_EQ(dashboard_.insights()->sessionLength(), "40m");
    EXPECT_EQ(dashboard_.insights()->sessionDay(), "mié 14 ene");
    EXPECT_EQ(dashboard_.insights()->sessionTimes(), "11:40 pm – 12:20 am");
}

TEST_F(StatsPresenterTest, ConstancyIsMeasuredAgainstTheDaysBetweenFirstAndLast) {
    book("code", daysAgo(1), 9, 0, 60);
    book("code", today(), 9, 0, 60);
    showTab(overviewTab);
    const auto tile = dashboard_.insights()->tiles()->index(5).data(RowListModel::rowRole).value<StatTile>();
    EXPECT_EQ(tile.value, "2/2");
}

TEST_F(StatsPresenterTest, TheLookBackIsRenewedEveryEightSecondsWhileItIsOnShow) {
    showTab(overviewTab);
    book("code", today(), 9, 0, 600);
    machine_.mainLoop.runFor(seconds(7));
    EXPECT_FALSE(dashboard_.insights()->hasSession());
    machine_.mainLoop.runFor(seconds(1));
    EXPECT_TRUE(dashboard_.insights()->hasSession());
    presenter_.selectTab(goalsTab);
    book("code", today(), 9, 10, 600);
    machine_.mainLoop.runFor(seconds(16));
    EXPECT_EQ(dashboard_.insights()->sessionLength(), "10m");
}

// Goals.

TEST_F(StatsPresenterTest, EachStepIsWithinItsRangeAndSavedAtOnce) {
    showTab(goalsTab);
    dashboard_.goals()->increase("dailyHours");
    EXPECT_DOUBLE_EQ(services_.goals.store.settings().dailyHours, 6.5);
    EXPECT_TRUE(machine_.files.readFile(services_.goals.store.filePath()).ok());
    for (int step = 0; step < 40; ++step) dashboard_.goals()->increase("dailyHours");
    EXPECT_DOUBLE_EQ(services_.goals.store.settings().dailyHours, 16);
    for (int step = 0; step < 40; ++step) dashboard_.goals()->decrease("dailyHours");
    EXPECT_DOUBLE_EQ(services_.goals.store.settings().dailyHours, 1);
}

struct StepRange {
    const char* id;
    double GoalSettings::*goal;
    double min;
    double max;
    double step;
};

TEST_F(StatsPresenterTest, TheRangesAndStepsOfAllGoals) {
    showTab(goalsTab);
    for (const auto& range : {StepRange{"dailyHours", &GoalSettings::dailyHours, 1, 16, 0.5},
                              StepRange{"dailyProductivity", &GoalSettings::dailyProductivity, 0.3, 1, 0.05},
                              StepRange{"weeklyHours", &GoalSettings::weeklyHours, 5, 80, 1},
                              StepRange{"monthlyHours", &GoalSettings::monthlyHours, 20, 320, 5}}) {
        SCOPED_TRACE(range.id);
        const double before = services_.goals.store.settings().*range.goal;
        dashboard_.goals()->decrease(range.id);
        EXPECT_DOUBLE_EQ(services_.goals.store.settings().*range.goal, before - range.step);
        for (int step = 0; step < 100; ++step) dashboard_.goals()->increase(range.id);
        EXPECT_DOUBLE_EQ(services_.goals.store.settings().*range.goal, range.max);
        for (int step = 0; step < 100; ++step) dashboard_.goals()->decrease(range.id);
        EXPECT_DOUBLE_EQ(services_.goals.store.settings().*range.goal, range.min);
    }
}

TEST_F(StatsPresenterTest, TheSwitchOfTheNotificationsIsSavedAtOnce) {
    showTab(goalsTab);
    dashboard_.goals()->setNotificationsEnabled(false);
    EXPECT_FALSE(services_.goals.store.settings().notificationsEnabled);
    EXPECT_NE(machine_.files.readFile(services_.goals.store.filePath()).value().find("false"),
              std::string::npos);
}

TEST_F(StatsPresenterTest, TheReportIsAskedForByItsButton) {
    dashboard_.goals()->exportReport();
    EXPECT_EQ(reportsAsked_, 1);
}

// Details.

TEST_F(StatsPresenterTest, WithAllChipsOffTheTableIsEmpty) {
    bookBelievableWork();
    showTab(detailsTab);
    EXPECT_FALSE(dashboard_.details()->isEmpty());
    for (const auto* tier : {"productivo", "neutral", "distrayendo", "sincategorizar"})
        dashboard_.details()->toggleTier(tier);
    EXPECT_TRUE(dashboard_.details()->isEmpty());
    EXPECT_EQ(dashboard_.details()->emptyText(), "Sin actividad para los filtros seleccionados.");
}

TEST_F(StatsPresenterTest, TheSearchFindsByNameIdentifierAndCategory) {
    bookBelievableWork();
    showTab(detailsTab);
    for (const auto& [query, count] :
         {std::pair("  VISUAL studio ", 1), std::pair("org.", 6), std::pair("desarrollo", 2)}) {
        dashboard_.details()->setSearchText(query);
        EXPECT_EQ(dashboard_.details()->rows()->rowCount(), count) << query;
    }
}

TEST_F(StatsPresenterTest, ARowAsksForItsMenu) {
    dashboard_.details()->openMenu("code", {10, 20});
    EXPECT_EQ(menusAsked_, std::vector<std::string>{"code"});
}

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

// Projects.

TEST_F(StatsPresenterTest, WithoutAnyProjectTheTabSaysHowToMakeOne) {
    book("code", today(), 9, 0, 600);
    showTab(projectsTab);
    EXPECT_TRUE(dashboard_.projects()->isEmpty());
    EXPECT_EQ(dashboard_.projects()->emptyTitle(), "Sin proyectos todavía");
    EXPECT_EQ(dashboard_.projects()->emptyText(), "Créa uno desde el menú ⏰ → Proyecto → Nuevo proyecto…");
}

TEST_F(StatsPresenterTest, WithProjectsButNoRowsTheTabSaysThatNothingIsTaggedYet) {
    services_.projects.store.addProject("Web");
    showTab(projectsTab);
    EXPECT_EQ(dashboard_.projects()->emptyTitle(), "Aún no etiquetas tiempo a ningún proyecto en este día.");
    EXPECT_EQ(dashboard_.projects()->emptyText(), "");
}

// The window.

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

TEST_F(StatsPresenterTest, TheHeadStepsThroughTheDaysButNotIntoTheFuture) {
    appear();
    auto& header = *dashboard_.header();
    EXPECT_EQ(header.date(), "jue 15 ene");
    EXPECT_FALSE(header.canGoForward());
    header.nextDay();
    EXPECT_EQ(header.date(), "jue 15 ene");
    header.previousDay();
    header.previousDay();
    EXPECT_EQ(header.date(), "mar 13 ene");
    EXPECT_TRUE(header.canGoForward());
    header.nextDay();
    EXPECT_EQ(header.date(), "mié 14 ene");
    header.today();
    EXPECT_EQ(header.date(), "jue 15 ene");
}

TEST_F(StatsPresenterTest, TheHeadLetsForwardWhenMidnightPassesWithTheWindowOpen) {
    machine_.clock.advance(hours(15) - seconds(3));
    appear();
    auto& header = *dashboard_.header();
    const QSignalSpy changed(&header, &HeaderPresenter::dateChanged);
    machine_.mainLoop.runFor(seconds(2));
    EXPECT_FALSE(header.canGoForward());
    machine_.mainLoop.runFor(seconds(2));
    EXPECT_TRUE(header.canGoForward());
    EXPECT_EQ(header.date(), "jue 15 ene");
    machine_.mainLoop.runFor(seconds(10));
    EXPECT_EQ(changed.count(), 1);
    header.nextDay();
    EXPECT_EQ(header.date(), "vie 16 ene");
    EXPECT_FALSE(header.canGoForward());
}

TEST_F(StatsPresenterTest, TheHeadKeepsFromTomorrowWhenTheClockIsSetBackToTheDayOnShow) {
    appear();
    auto& header = *dashboard_.header();
    header.previousDay();
    EXPECT_TRUE(header.canGoForward());
    machine_.clock.setNow(machine_.clock.now() - hours(24));
    machine_.mainLoop.runFor(seconds(2));
    EXPECT_EQ(header.date(), "mié 14 ene");
    EXPECT_FALSE(header.canGoForward());
}

TEST_F(StatsPresenterTest, TheHeadIsRightAgainWhenTheWindowComesUpAfterMidnight) {
    appear();
    presenter_.disappear();
    machine_.clock.advance(hours(24));
    appear();
    EXPECT_EQ(dashboard_.header()->date(), "jue 15 ene");
    EXPECT_TRUE(dashboard_.header()->canGoForward());
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

// Names that others gave.

TEST_F(StatsPresenterTest, AProjectWithoutANameIsARowThatCanBeRead) {
    bookProject(services_.projects.store.addProject("").id, "code", today(), 60);
    services_.counting.days.set(Seconds(60), today());
    showTab(projectsTab);
    const auto project = test::probe(*dashboard_.projects())["rows"].toArray().at(0).toObject();
    EXPECT_EQ(project["title"].toString(), "Sin nombre");
    EXPECT_TRUE(project["tagged"].toBool());
    EXPECT_EQ(project["accessibleText"].toString(), "Sin nombre, 1m, 100%");
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
    EXPECT_EQ(presenter_.tabs(), QStringList({"Overview", "Metas", "Detalle", "Timesheet", "Proyectos"}));
    presenter_.selectTab(7);
    presenter_.selectTab(-1);
    EXPECT_EQ(presenter_.tabIndex(), 0);
}

TEST_F(StatsPresenterTest, ARefreshChangesOnlyTheRowsThatDiffer) {
    book("code", today(), 9, 0, 120);
    book("firefox", today(), 9, 0, 60);
    showTab(detailsTab);
    auto* rows = dashboard_.details()->rows();
    QSignalSpy changed(rows, &QAbstractItemModel::dataChanged);
    QSignalSpy reset(rows, &QAbstractItemModel::modelReset);
    QSignalSpy inserted(rows, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(rows, &QAbstractItemModel::rowsRemoved);
    machine_.mainLoop.runFor(seconds(2));
    EXPECT_EQ(changed.count(), 0);
    book("thunderbird", today(), 9, 0, 30);
    machine_.mainLoop.runFor(seconds(2));
    EXPECT_EQ(inserted.count(), 1);
    EXPECT_EQ(removed.count() + reset.count(), 0);
}

}  // namespace
}  // namespace tidewatch
