#include "shell/project_menu.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

#include "app/program_world.h"
#include "core/data_directory.h"

namespace tidewatch {
namespace {

class ProjectMenuTest : public ProgramWorld {
protected:
    ProjectMenuTest() { launch(); }

    [[nodiscard]] ProjectStore& projects() { return program_->services.projects.store; }

    /// The rows of the submenu that these titles lead to, from the menu on.
    MenuRows rowsAt(const std::vector<std::string>& path) {
        auto rows = menu();
        for (const auto& title : path) {
            const auto found =
                std::find_if(rows.begin(), rows.end(), [&](const auto& row) { return row.title == title; });
            if (found == rows.end()) throw std::out_of_range("no row " + title);
            rows = MenuRows(found->children);
        }
        return rows;
    }

    static std::vector<std::string> titles(const MenuRows& rows) {
        std::vector<std::string> result;
        for (const auto& row : rows)
            result.push_back((row.checked ? "✓" : "") + (row.separates ? "-" : row.title));
        return result;
    }

    using Titles = std::vector<std::string>;
};

TEST_F(ProjectMenuTest, WithoutProjects) {
    EXPECT_EQ(titles(rowsAt({"Proyecto"})), (Titles{"✓(ninguno)", "-", "Nuevo proyecto…"}));
}

TEST_F(ProjectMenuTest, ProjectsInTheOrderOfCreationWithTheActiveOneChecked) {
    projects().addProject("Uno");
    projects().setActive(projects().addProject("Dos").id);
    EXPECT_EQ(titles(rowsAt({"Proyecto"})),
              (Titles{"(ninguno)", "-", "Uno", "✓Dos", "-", "Nuevo proyecto…"}));
    EXPECT_EQ(titles(rowsAt({"Proyecto", "Uno"})), (Titles{"Activar", "-", "Renombrar…", "Cambiar color",
                                                           "Exportar CSV…", "-", "Archivar", "Borrar…"}));
    EXPECT_EQ(titles(rowsAt({"Proyecto", "Dos"}))[0], "✓Activo");
}

TEST_F(ProjectMenuTest, AProjectWithoutANameIsARowAsAnyOther) {
    machine_.files.put(dataDirectory(machine_.files) + "/projects.json",
                       R"({"projects": [{"id": "0A0B0C0D-0000-4000-8000-000000000001", "name": "",)"
                       R"( "colorHex": "#7BD88F", "archived": false}]})");
    launch();
    const auto rows = rowsAt({"Proyecto"});
    ASSERT_EQ(rows.size(), 5U);
    EXPECT_FALSE(rows[2].separates);
    EXPECT_TRUE(rows[2].isEnabled());
    EXPECT_EQ(titles(rows[2].children)[0], "Activar");
}

TEST_F(ProjectMenuTest, ArchivedProjectsHaveASubmenuThatRestoresThem) {
    const auto id = projects().addProject("Viejo").id;
    projects().setArchived(ProjectStore::Archived::yes, id);
    EXPECT_EQ(titles(rowsAt({"Proyecto"})), (Titles{"✓(ninguno)", "-", "Nuevo proyecto…", "Archivados"}));
    rowsAt({"Proyecto", "Archivados"})[0].action();
    EXPECT_FALSE(projects().project(id)->archived);
}

TEST_F(ProjectMenuTest, ColoursInThePalettesOrderWithTheProjectsOwnCheckedInEitherLetterCase) {
    const auto id = projects().addProject("Uno").id;
    projects().setColor("#d15757", id);
    const auto colors = rowsAt({"Proyecto", "Uno", "Cambiar color"});
    EXPECT_EQ(titles(colors),
              (Titles{"Verde", "Azul", "Ámbar", "✓Rojo", "Morado", "Teal", "Naranja", "Rosa"}));
    EXPECT_EQ(colors[1].swatch, (RgbColor{0x6B, 0x9E, 0xD4}));
    colors[7].action();
    EXPECT_EQ(projects().project(id)->colorHex, "#D88FB7");
}

TEST_F(ProjectMenuTest, AColourWithoutItsHashSignIsNoneOfTheMenus) {
    const auto id = projects().addProject("Uno").id;
    projects().setColor("7BD88F", id);
    for (const auto& row : rowsAt({"Proyecto", "Uno", "Cambiar color"}))
        EXPECT_FALSE(row.checked) << row.title;
}

TEST_F(ProjectMenuTest, ActivatingAndDeactivating) {
    const auto id = projects().addProject("Uno").id;
    ASSERT_TRUE(choose("Activar"));
    EXPECT_EQ(projects().activeProjectId(), id);
    ASSERT_TRUE(choose("(ninguno)"));
    EXPECT_EQ(projects().activeProjectId(), std::nullopt);
}

TEST_F(ProjectMenuTest, ANewProjectIsTrimmedAndBecomesActiveAtOnce) {
    ASSERT_TRUE(choose("Nuevo proyecto…"));
    EXPECT_EQ(surfaces_.prompt().title, "Nuevo proyecto");
    EXPECT_EQ(surfaces_.prompt().text.whole(), "Nombre del proyecto:");
    EXPECT_EQ(surfaces_.prompt().accept, "Crear");
    EXPECT_EQ(surfaces_.prompt().placeholder, "p.ej. LMN Juvenil");
    EXPECT_EQ(surfaces_.prompt().fieldWidth, 240);
    surfaces_.answer("  Corto \n");
    ASSERT_EQ(projects().projects().size(), 1U);
    EXPECT_EQ(projects().activeProject()->name, "Corto");
}

TEST_F(ProjectMenuTest, ANewProjectWithoutANameIsNone) {
    ASSERT_TRUE(choose("Nuevo proyecto…"));
    surfaces_.answer(" \n ");
    EXPECT_TRUE(projects().projects().empty());
}

TEST_F(ProjectMenuTest, RenamingStartsFromTheNameAndABlankNameDoesNotRename) {
    projects().addProject("Uno");
    ASSERT_TRUE(choose("Renombrar…"));
    EXPECT_EQ(surfaces_.prompt().title, "Renombrar proyecto");
    EXPECT_EQ(surfaces_.prompt().text.whole(), "Nuevo nombre para \"Uno\":");
    EXPECT_EQ(surfaces_.prompt().accept, "Cambiar");
    EXPECT_EQ(surfaces_.prompt().initial, "Uno");
    EXPECT_EQ(surfaces_.prompt().fieldWidth, 280);
    surfaces_.answer("   ");
    EXPECT_EQ(projects().projects()[0].name, "Uno");
    surfaces_.answer(" Dos ");
    EXPECT_EQ(projects().projects()[0].name, "Dos");
}

TEST_F(ProjectMenuTest, DeletingAsksWithTheExactWords) {
    projects().addProject("Uno");
    ASSERT_TRUE(choose("Borrar…"));
    EXPECT_EQ(surfaces_.question().title.whole(), "Borrar \"Uno\"");
    EXPECT_EQ(
        surfaces_.question().text.whole(),
        "Esto elimina el proyecto y su tiempo asociado del historial. Esta acción no se puede deshacer.");
    EXPECT_EQ(surfaces_.question().accept, "Borrar");
    EXPECT_EQ(projects().projects().size(), 1U);
    surfaces_.agree();
    EXPECT_TRUE(projects().projects().empty());
}

TEST_F(ProjectMenuTest, ACommandForAProjectThatIsGoneDoesNothing) {
    const auto id = projects().addProject("Uno").id;
    const auto rows = rowsAt({"Proyecto", "Uno"});
    projects().deleteProject(id);
    for (const auto& row : rows) {
        if (row.action) row.action();
    }
    EXPECT_EQ(projects().activeProjectId(), std::nullopt);
    EXPECT_EQ(surfaces_.questionsAsked(), 0);
}

TEST_F(ProjectMenuTest, ArchivingTheActiveProjectLeavesNoneActive) {
    projects().setActive(projects().addProject("Uno").id);
    ASSERT_TRUE(choose("Archivar"));
    EXPECT_EQ(projects().activeProjectId(), std::nullopt);
}

}  // namespace
}  // namespace tidewatch
