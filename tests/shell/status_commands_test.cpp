#include "shell/status_commands.h"

#include <gtest/gtest.h>

#include "app/program_world.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;
using platform::Point;

class StatusCommandsTest : public ProgramWorld {
protected:
    StatusCommandsTest() { launch(); }
};

TEST_F(StatusCommandsTest, SwitchThemeSizesThePanelForTheNewTheme) {
    ASSERT_TRUE(choose("Hacker"));
    EXPECT_EQ(surfaces_.panel().panelSize(), (PanelSize{260 * 0.25, 110 * 0.25}));
}

TEST_F(StatusCommandsTest, SwitchSizeKeepsTheTopLeftCorner) {
    const auto before = surfaces_.panel().origin();
    ASSERT_TRUE(choose("100%"));
    EXPECT_EQ(surfaces_.panel().panelSize(), (PanelSize{220, 124}));
    EXPECT_EQ(surfaces_.panel().origin(), before);
    EXPECT_EQ(program_->services.counting.settings.windowOrigin(), before);
}

TEST_F(StatusCommandsTest, AChangeOfTheIdleThresholdHoldsFromTheNextTick) {
    machine_.inputActivity.set(100);
    runFor(2s);
    EXPECT_EQ(program_->services.engine.status(), TimerEngine::Status::active);
    ASSERT_TRUE(choose("1 min"));
    runFor(1s);
    EXPECT_EQ(program_->services.engine.status(), TimerEngine::Status::idle);
}

TEST_F(StatusCommandsTest, ToggleVisibleHidesThePanelAndRemembersIt) {
    ASSERT_TRUE(choose("Ocultar ventana"));
    EXPECT_FALSE(surfaces_.panel().isVisible());
    EXPECT_FALSE(program_->services.counting.settings.windowVisible());
    ASSERT_TRUE(choose("Mostrar ventana"));
    EXPECT_TRUE(surfaces_.panel().isVisible());
    EXPECT_TRUE(program_->services.counting.settings.windowVisible());
}

TEST_F(StatusCommandsTest, ResetTodayPutsTheDayBackOnDiskAtOnce) {
    runFor(40s);
    ASSERT_TRUE(choose("Reiniciar día"));
    EXPECT_EQ(file("today.json"), "{\n  \"2026-01-15\" : 0\n}");
    runFor(1s);
    EXPECT_EQ(program_->services.engine.todaySeconds(), Seconds(1));
}

TEST_F(StatusCommandsTest, ShowStatsWritesTheDayAloneAndShowsTheWindow) {
    runFor(5s);
    ASSERT_TRUE(choose("Estadísticas…"));
    EXPECT_TRUE(statistics_.isVisible());
    EXPECT_EQ(file("today.json"), "{\n  \"2026-01-15\" : 5\n}");
    EXPECT_EQ(file("apps.json"), "(none)");
}

TEST_F(StatusCommandsTest, RevealDataWritesTheDayAndShowsItsFile) {
    runFor(5s);
    ASSERT_TRUE(choose("Revelar archivo de datos"));
    EXPECT_EQ(file("today.json"), "{\n  \"2026-01-15\" : 5\n}");
    EXPECT_EQ(file("apps.json"), "(none)");
    EXPECT_EQ(machine_.desktop.revealed(),
              std::vector<std::string>{program_->services.counting.days.dataFilePath()});
}

TEST_F(StatusCommandsTest, AFileThatCannotBeShownIsTold) {
    machine_.desktop.setRevealStatus(Error{"no file manager"});
    ASSERT_TRUE(choose("Revelar archivo de datos"));
    EXPECT_EQ(
        surfaces_.warnings(),
        std::vector<std::string>{"No se pudo mostrar el archivo de datos: No respondió ningún gestor de "
                                 "archivos. El archivo está aquí:\n" +
                                 program_->services.counting.days.dataFilePath()});
}

TEST_F(StatusCommandsTest, ToggleLoginItemRegistersAndUnregisters) {
    ASSERT_TRUE(choose("Iniciar al arrancar"));
    EXPECT_TRUE(machine_.loginItem.isEnabled());
    ASSERT_TRUE(choose("Iniciar al arrancar"));
    EXPECT_FALSE(machine_.loginItem.isEnabled());
}

TEST_F(StatusCommandsTest, AFailureToChangeTheLoginItemIsShown) {
    machine_.loginItem.setFailure(Error{"the folder is read-only"});
    ASSERT_TRUE(choose("Iniciar al arrancar"));
    EXPECT_EQ(surfaces_.warnings(),
              std::vector<std::string>{"No se pudo cambiar el ajuste de inicio: the folder is read-only"});
    EXPECT_FALSE(machine_.loginItem.isEnabled());
}

}  // namespace
}  // namespace tidewatch
