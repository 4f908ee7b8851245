// The golden values of every tab.

#include <gtest/gtest.h>

#include "shell/views/stats_presenter_fixture.h"
#include "tests/support/presenter_probe.h"

namespace tidewatch {
namespace {

void expectGolden(const QObject* presenter, const QString& name) {
    test::expectGolden(test::probe(*presenter), TIDEWATCH_GOLDEN_FOLDER "/" + name);
}

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

}  // namespace
}  // namespace tidewatch
