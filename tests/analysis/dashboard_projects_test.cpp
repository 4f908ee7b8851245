// The projects' rows of a day.

#include <fmt/format.h>
#include <gmock/gmock.h>

#include "analysis/dashboard_model_fixture.h"

namespace tidewatch {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

TEST_F(DashboardModelTest, ADayWithoutProjectTimeIsOneUntaggedRow) {
    fixture_.projects.addProject("Casa");
    fixture_.days.set(Seconds(100), DayKey("2026-01-15"));
    model_.reload();
    EXPECT_THAT(model_.projectRows(),
                ElementsAre(ProjectRow{"__untagged__", std::nullopt, Seconds(100), {}}));
}

TEST_F(DashboardModelTest, ProjectTimeBeyondTheDaysTotalLeavesNoUntaggedRow) {
    const auto casa = fixture_.projects.addProject("Casa");
    bookProject(casa, editor, "2026-01-15", 10);
    fixture_.days.set(Seconds(9), DayKey("2026-01-15"));
    model_.reload();
    EXPECT_THAT(rowsOfProjects(), ElementsAre("Casa 10"));
    fixture_.days.set(Seconds(10), DayKey("2026-01-15"));
    model_.reload();
    EXPECT_THAT(rowsOfProjects(), ElementsAre("Casa 10"));
}

TEST_F(DashboardModelTest, OneSecondGivesAProjectARowAndNoneGivesItNone) {
    fixture_.projects.addProject("Nada");
    const auto casa = fixture_.projects.addProject("Casa");
    bookProject(casa, editor, "2026-01-15", 1);
    bookProject(casa, editor, "2026-01-14", 5);
    model_.reload();
    EXPECT_THAT(rowsOfProjects(), ElementsAre("Casa 1"));
    EXPECT_EQ(model_.projectRows()[0].id, casa.id.text());
    EXPECT_EQ(model_.projectRows()[0].project, casa);
}

TEST_F(DashboardModelTest, TheTimeOfAnArchivedProjectLandsInTheRest) {
    const auto casa = fixture_.projects.addProject("Casa");
    const auto old = fixture_.projects.addProject("Viejo");
    bookProject(casa, editor, "2026-01-15", 10);
    bookProject(old, editor, "2026-01-15", 50);
    fixture_.days.set(Seconds(70), DayKey("2026-01-15"));
    fixture_.projects.setArchived(ProjectStore::Archived::yes, old.id);
    model_.reload();
    EXPECT_THAT(rowsOfProjects(), ElementsAre("__untagged__ 60", "Casa 10"));
}

TEST_F(DashboardModelTest, AProjectShowsTheFirstSixOfItsApplications) {
    const auto casa = fixture_.projects.addProject("Casa");
    for (int i = 1; i <= 8; ++i) {
        bookProject(casa, fmt::format("app{}", i).c_str(), "2026-01-15", i);
    }
    model_.reload();
    ASSERT_THAT(model_.projectRows(), SizeIs(1));
    const auto& row = model_.projectRows()[0];
    EXPECT_THAT(namesOf(row.topApps), ElementsAre("app8", "app7", "app6", "app5", "app4", "app3"));
    EXPECT_EQ(row.seconds, Seconds(36)) << "of all eight";
    EXPECT_EQ(row.topApps[0].seconds, Seconds(8));
}

TEST_F(DashboardModelTest, EqualRowsKeepTheOrderOfTheProjectsAndTheRestComesAfterThem) {
    const auto a = fixture_.projects.addProject("A");
    const auto b = fixture_.projects.addProject("B");
    const auto c = fixture_.projects.addProject("C");
    bookProject(c, editor, "2026-01-15", 20);
    bookProject(b, editor, "2026-01-15", 10);
    bookProject(a, editor, "2026-01-15", 10);
    fixture_.days.set(Seconds(50), DayKey("2026-01-15"));
    model_.reload();
    EXPECT_THAT(rowsOfProjects(), ElementsAre("C 20", "A 10", "B 10", "__untagged__ 10"));
}

TEST_F(DashboardModelTest, TheScoreAndTheDaysTotalNeedNotAgree) {
    fixture_.days.set(Seconds(1000), DayKey("2026-01-15"));
    book(editor, "2026-01-15", 60);
    model_.reload();
    EXPECT_EQ(model_.totalActiveToday(), Seconds(60));
    EXPECT_THAT(rowsOfProjects(), ElementsAre("__untagged__ 1000"));
}

}  // namespace
}  // namespace tidewatch
