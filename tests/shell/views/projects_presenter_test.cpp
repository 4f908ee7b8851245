// The projects.

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonObject>

#include "shell/views/stats_presenter_fixture.h"
#include "tests/support/presenter_probe.h"

namespace tidewatch {
namespace {

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

TEST_F(StatsPresenterTest, AProjectWithoutANameIsARowThatCanBeRead) {
    bookProject(services_.projects.store.addProject("").id, "code", today(), 60);
    services_.counting.days.set(Seconds(60), today());
    showTab(projectsTab);
    const auto project = test::probe(*dashboard_.projects())["rows"].toArray().at(0).toObject();
    EXPECT_EQ(project["title"].toString(), "Sin nombre");
    EXPECT_TRUE(project["tagged"].toBool());
    EXPECT_EQ(project["accessibleText"].toString(), "Sin nombre, 1m, 100%");
}

}  // namespace
}  // namespace tidewatch
