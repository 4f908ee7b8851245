#include "shell/status_menu.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

#include "app/program_world.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;

class StatusMenuTest : public ProgramWorld {
protected:
    static const MenuRow& row(const MenuRows& rows, const std::string& title) {
        const auto found =
            std::find_if(rows.begin(), rows.end(), [&](const auto& each) { return each.title == title; });
        if (found == rows.end()) throw std::out_of_range("no row " + title);
        return *found;
    }

    static std::vector<std::string> titles(const MenuRows& rows) {
        std::vector<std::string> titles;
        for (const auto& each : rows) titles.push_back(each.separates ? "-" : each.title);
        return titles;
    }

    static std::vector<std::string> checked(const MenuRow& menu) {
        std::vector<std::string> titles;
        for (const auto& each : menu.children) {
            if (each.checked) titles.push_back(each.title);
        }
        return titles;
    }

    using Titles = std::vector<std::string>;
};

TEST_F(StatusMenuTest, HasItsRowsInOrder) {
    EXPECT_EQ(titles(menu()), (Titles{"Hoy · — productivo",
                                      "-",
                                      "Sesión: 00:00:00",
                                      "Hoy: 00:00:00",
                                      "-",
                                      "Productivo: 0s",
                                      "Neutral: 0s",
                                      "Distrayendo: 0s",
                                      "-",
                                      "Tema",
                                      "Tamaño",
                                      "Idle",
                                      "El día empieza",
                                      "Proyecto",
                                      "Widgets de escritorio",
                                      "Ocultar ventana",
                                      "Reiniciar día",
                                      "-",
                                      "Estadísticas…",
                                      "Revelar archivo de datos",
                                      "Exportar día (CSV)…",
                                      "-",
                                      "Iniciar al arrancar",
                                      "-",
                                      "Salir"}));
}

TEST_F(StatusMenuTest, IsMadeAnewAtEveryOpening) {
    EXPECT_EQ(menu()[2].title, "Sesión: 00:00:00");
    runFor(65s);
    EXPECT_EQ(menu()[2].title, "Sesión: 00:01:05");
    EXPECT_EQ(menu()[3].title, "Hoy: 00:01:05");
}

TEST_F(StatusMenuTest, TheClocksAreDisabledRows) {
    const auto rows = menu();
    EXPECT_FALSE(rows[2].isEnabled());
    EXPECT_FALSE(rows[3].isEnabled());
    EXPECT_TRUE(row(rows, "Reiniciar día").isEnabled());
}

TEST_F(StatusMenuTest, TellsWhatTheDayWasWorth) {
    machine_.frontmost.set(AppId("com.apple.dt.Xcode"));
    launch();
    runFor(90s);
    machine_.frontmost.set(AppId("com.valvesoftware.steam"));
    runFor(30s);
    machine_.frontmost.set(AppId("com.apple.finder"));
    runFor(61s);
    const auto rows = menu();
    EXPECT_EQ(rows[0].title, "Hoy · 75% productivo");
    EXPECT_EQ(rows[5].title, "Productivo: 1m 30s");
    EXPECT_EQ(rows[6].title, "Neutral: 1m 1s");
    EXPECT_EQ(rows[7].title, "Distrayendo: 30s");
    EXPECT_TRUE(rows[8].separates);
}

TEST_F(StatusMenuTest, UncategorisedTimeHasARowFromAMinuteOn) {
    launch();
    runFor(59s);
    EXPECT_TRUE(menu()[8].separates);
    runFor(1s);
    EXPECT_EQ(menu()[8].title, "Sin categorizar: 1m 0s");
}

TEST_F(StatusMenuTest, KeyEquivalents) {
    const auto rows = menu();
    EXPECT_EQ(row(rows, "Ocultar ventana").keyEquivalent, 'h');
    EXPECT_EQ(row(rows, "Estadísticas…").keyEquivalent, 'e');
    EXPECT_EQ(row(rows, "Salir").keyEquivalent, 'q');
    EXPECT_EQ(row(rows, "Reiniciar día").keyEquivalent, std::nullopt);
}

TEST_F(StatusMenuTest, ThemesInTheirOrderWithTheActiveOneChecked) {
    machine_.preferences.setText("activeThemeID", "hacker");
    const auto themes = row(menu(), "Tema");
    EXPECT_EQ(titles(themes.children),
              (Titles{"Ochre", "Editorial Light", "Minimalista", "Hacker", "Liquid Crystal"}));
    EXPECT_EQ(checked(themes), Titles{"Hacker"});
}

TEST_F(StatusMenuTest, AnUnknownStoredThemeChecksTheFirst) {
    machine_.preferences.setText("activeThemeID", "gone");
    EXPECT_EQ(checked(row(menu(), "Tema")), Titles{"Ochre"});
}

TEST_F(StatusMenuTest, SizesWithTheNearestChecked) {
    machine_.preferences.setReal("sizeScale", 0.33);
    const auto sizes = row(menu(), "Tamaño");
    EXPECT_EQ(titles(sizes.children), (Titles{"10%", "25%", "50%", "75%", "100%", "500%"}));
    EXPECT_EQ(checked(sizes), Titles{"25%"});
}

TEST_F(StatusMenuTest, AStoredIdleThresholdOf240SecondsChecks3Minutes) {
    machine_.preferences.setInteger("idleThresholdSeconds", 240);
    const auto idle = row(menu(), "Idle");
    EXPECT_EQ(titles(idle.children), (Titles{"1 min", "3 min", "5 min", "10 min", "15 min", "30 min"}));
    EXPECT_EQ(checked(idle), Titles{"3 min"});
}

TEST_F(StatusMenuTest, DayStartsWithTheStoredHourChecked) {
    machine_.preferences.setInteger("dayStartHour", 5);
    const auto hours = row(menu(), "El día empieza");
    EXPECT_EQ(titles(hours.children),
              (Titles{"Medianoche (00:00)", "04:00", "05:00", "06:00", "07:00", "08:00"}));
    EXPECT_EQ(checked(hours), Titles{"05:00"});
}

TEST_F(StatusMenuTest, ADayStartOutsideTheListChecksNone) {
    machine_.preferences.setInteger("dayStartHour", 3);
    EXPECT_EQ(checked(row(menu(), "El día empieza")), Titles{});
}

TEST_F(StatusMenuTest, AHiddenPanelCanBeShown) {
    machine_.preferences.setBoolean("windowVisible", false);
    EXPECT_TRUE(row(menu(), "Mostrar ventana").isEnabled());
}

TEST_F(StatusMenuTest, StartAtLoginIsCheckedWhenItIsEnabled) {
    EXPECT_FALSE(row(menu(), "Iniciar al arrancar").checked);
    ASSERT_TRUE(machine_.loginItem.registerItem().ok());
    EXPECT_TRUE(row(menu(), "Iniciar al arrancar").checked);
}

TEST_F(StatusMenuTest, SaysWhenInputGoesUnseen) {
    machine_.inputActivity.setCoverage(platform::InputCoverage::someWindows);
    EXPECT_EQ(menu()[4].title, "Wayland: solo se ven las ventanas X11");
    EXPECT_FALSE(menu()[4].isEnabled());
    machine_.inputActivity.setCoverage(platform::InputCoverage::nothing);
    EXPECT_EQ(menu()[4].title, "Sin detección de actividad: no se cuenta");
}

TEST_F(StatusMenuTest, RowsCarryOutTheirCommands) {
    const auto rows = menu();
    row(row(rows, "Tema").children, "Minimalista").action();
    row(row(rows, "Tamaño").children, "500%").action();
    row(row(rows, "Idle").children, "1 min").action();
    row(row(rows, "El día empieza").children, "04:00").action();
    row(rows, "Salir").action();
    EXPECT_EQ(program_->services.counting.settings.activeThemeId(), "minimal");
    EXPECT_EQ(program_->services.counting.settings.sizeScale(), 5.0);
    EXPECT_EQ(program_->services.counting.settings.idleThresholdSeconds(), 60);
    EXPECT_EQ(program_->services.counting.settings.dayStartHour(), 4);
    EXPECT_TRUE(terminated_);
}

TEST(MenuGroups, ALineStandsBetweenTwoGroupsAndNoneWithinOneOrAtAnEnd) {
    const auto section = [](const char* title) {
        return [title](MenuRows& rows) { rows.push_back({.title = title}); };
    };
    std::string menu;
    for (const auto& row : buildStatusMenu({{section("a"), section("b")}, {section("c")}})) {
        menu += row.separates ? "-" : row.title;
    }
    EXPECT_EQ(menu, "ab-c");
}

}  // namespace
}  // namespace tidewatch
