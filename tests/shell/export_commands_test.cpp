#include "shell/export_commands.h"

#include <gtest/gtest.h>

#include "app/program_world.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;

constexpr auto place = "/home/user/Documentos/out.csv";

class ExportCommandsTest : public ProgramWorld {
protected:
    ExportCommandsTest() {
        EXPECT_TRUE(machine_.files.createDirectories("/home/user/Documentos").ok());
        launch();
    }

    [[nodiscard]] std::string written() const { return machine_.files.content(place).value_or("(none)"); }

    Project activeProject(const std::string& name) {
        auto project = program_->services.projects.store.addProject(name);
        program_->services.projects.store.setActive(project.id);
        return project;
    }
};

TEST_F(ExportCommandsTest, TheDayIsBroughtUpToDateBeforeTheQuestion) {
    runFor(5s);
    ASSERT_TRUE(choose("Exportar día (CSV)…"));
    EXPECT_EQ(file("today.json"), "{\n  \"2026-01-15\" : 5\n}");
    EXPECT_EQ(file("apps.json"), "{\n  \"2026-01-15\" : {\n    \"org.example.Editor\" : 5\n  }\n}");
    EXPECT_EQ(file("hours.json"), "(none)");
    EXPECT_EQ(file("minutes.json"), "(none)");
    EXPECT_EQ(file("project_time.json"), "(none)");
    EXPECT_EQ(surfaces_.saveRequest().title, "Exportar día");
    EXPECT_EQ(surfaces_.saveRequest().proposedName, "tidewatch-2026-01-15.csv");
    EXPECT_EQ(surfaces_.saveRequest().kind, SaveKind::csv);
}

TEST_F(ExportCommandsTest, TheDayIsReadAfterTheAnswer) {
    runFor(5s);
    ASSERT_TRUE(choose("Exportar día (CSV)…"));
    EXPECT_EQ(written(), "(none)");
    runFor(2s);
    surfaces_.place(place);
    EXPECT_EQ(written(),
              "bundle_id,app_name,category,tier,seconds,hms,percent\n"
              "org.example.Editor,org.example.Editor,Sin categorizar,sincategorizar,7,00:00:07,100.00\n");
    EXPECT_TRUE(surfaces_.warnings().empty());
}

TEST_F(ExportCommandsTest, WithoutAnAnswerNothingIsWrittenOrShown) {
    ASSERT_TRUE(choose("Exportar día (CSV)…"));
    EXPECT_EQ(written(), "(none)");
    EXPECT_TRUE(surfaces_.warnings().empty());
}

TEST_F(ExportCommandsTest, TheDayOfTheQuestionIsExportedAlsoOverMidnight) {
    ASSERT_TRUE(choose("Exportar día (CSV)…"));
    machine_.clock.setNow(std::chrono::sys_days(std::chrono::January / 16 / 2026) + 1s);
    runFor(5s);
    surfaces_.place(place);
    EXPECT_EQ(written(), "bundle_id,app_name,category,tier,seconds,hms,percent\n");
}

TEST_F(ExportCommandsTest, AFailedExportOfTheDayIsShown) {
    runFor(5s);
    ASSERT_TRUE(choose("Exportar día (CSV)…"));
    machine_.files.failWrite(1);
    surfaces_.place(place);
    EXPECT_EQ(surfaces_.warnings(),
              std::vector<std::string>{"No se pudo escribir el archivo: El disco dio un error."});
}

TEST_F(ExportCommandsTest, AFullDiskIsShownInPlainWords) {
    ASSERT_TRUE(choose("Exportar día (CSV)…"));
    machine_.files.setDisk(platform::MemoryFileSystem::Disk::full);
    surfaces_.place(place);
    EXPECT_EQ(surfaces_.warnings(),
              std::vector<std::string>{"No se pudo escribir el archivo: No queda espacio en el disco."});
}

TEST_F(ExportCommandsTest, AnExportIsWrittenAsTheUsersFileAndTheRecordIsNot) {
    ASSERT_TRUE(choose("Exportar día (CSV)…"));
    surfaces_.place(place);
    EXPECT_EQ(machine_.files.exports(), std::vector<std::string>{place});
}

TEST_F(ExportCommandsTest, AProjectsTimeIsWrittenBeforeTheQuestionAndNothingElse) {
    activeProject("A/B");
    runFor(5s);
    ASSERT_TRUE(choose("Exportar CSV…"));
    EXPECT_NE(file("project_time.json"), "(none)");
    EXPECT_EQ(file("today.json"), "(none)");
    EXPECT_EQ(file("apps.json"), "(none)");
    EXPECT_EQ(surfaces_.saveRequest().title, "Exportar proyecto");
    EXPECT_EQ(surfaces_.saveRequest().proposedName, "tidewatch-A-B.csv");
}

TEST_F(ExportCommandsTest, AProjectIsWrittenWithItsTotal) {
    activeProject("Corto");
    runFor(5s);
    ASSERT_TRUE(choose("Exportar CSV…"));
    surfaces_.place(place);
    EXPECT_EQ(written(),
              "date,bundle_id,app_name,category,tier,seconds,hms\n"
              "2026-01-15,org.example.Editor,org.example.Editor,Sin categorizar,sincategorizar,5,00:00:05\n"
              "\n"
              "# total,,,,,5,00:00:05\n");
}

TEST_F(ExportCommandsTest, AFailedExportOfAProjectIsShown) {
    activeProject("Corto");
    ASSERT_TRUE(choose("Exportar CSV…"));
    machine_.files.failWrite(1);
    surfaces_.place(place);
    EXPECT_EQ(surfaces_.warnings(),
              std::vector<std::string>{"No se pudo escribir el archivo: El disco dio un error."});
}

TEST_F(ExportCommandsTest, AProjectThatIsGoneIsNotAskedFor) {
    const auto project = activeProject("Corto");
    program_->services.projects.store.deleteProject(project.id);
    program_->program.exports().exportProjectCSV(project.id);
    EXPECT_EQ(surfaces_.questionsAsked(), 0);
    EXPECT_EQ(file("project_time.json"), "(none)");
}

TEST_F(ExportCommandsTest, TheReportsPlaceIsShownAlsoAfterAFailureAndInSilence) {
    machine_.desktop.setRevealStatus(Error{"no file manager"});
    program_->program.exports().exportReport();
    EXPECT_EQ(surfaces_.saveRequest().title, "Guardar reporte");
    EXPECT_EQ(surfaces_.saveRequest().proposedName, "fathom-reporte.pdf");
    EXPECT_EQ(surfaces_.saveRequest().kind, SaveKind::pdf);
    EXPECT_TRUE(reports_.empty());
    surfaces_.place("/home/user/enero.pdf");
    EXPECT_EQ(reports_, std::vector<std::string>{"/home/user/enero.pdf"});
    EXPECT_EQ(machine_.desktop.revealed(), std::vector<std::string>{"/home/user/enero.pdf"});
    EXPECT_TRUE(surfaces_.warnings().empty());
}

TEST_F(ExportCommandsTest, AReportThatIsWrittenButCannotBeShownIsTold) {
    reportsSucceed_ = true;
    machine_.desktop.setRevealStatus(Error{"no file manager"});
    program_->program.exports().exportReport();
    surfaces_.place("/home/user/enero.pdf");
    EXPECT_EQ(
        surfaces_.warnings(),
        std::vector<std::string>{"No se pudo mostrar el reporte: No respondió ningún gestor de archivos. "
                                 "El archivo está aquí:\n/home/user/enero.pdf"});
}

}  // namespace
}  // namespace tidewatch
