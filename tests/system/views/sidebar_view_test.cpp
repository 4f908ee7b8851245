// The sidebar as a view: its panels, and how they are opened and closed.

#include <QtTest/QTest>

#include "tests/system/views/system_view_fixture.h"

namespace tidewatch {
namespace {

TEST_F(SystemViewTest, EveryPanelLoadsInEveryThemeWithNothingCutOff) {
    measureSpeed(std::chrono::seconds(8));
    for (const auto& theme : themes_.themes()) {
        SCOPED_TRACE(theme.id);
        theme_.switchTo(theme.id);
        showSidebar();
        for (int panel = 0; panel < 6; ++panel) {
            SCOPED_TRACE(panel);
            sidebar_.select(static_cast<SysPanel>(panel));
            EXPECT_EQ(picture().size(), QSize(220, 1000));
            expectNothingCutOff(220);
        }
        sidebar_.back();
    }
}

TEST_F(SystemViewTest, AClickOnARowOpensItsPanelAndTheArrowReturns) {
    showSidebar();
    click(the("CPU"));
    processEvents();
    EXPECT_EQ(sidebar_.panel(), SysPanel::cpu);
    EXPECT_FALSE(the("overview").isVisible());
    EXPECT_EQ(textOf("panelTitle"), "CPU");
    EXPECT_EQ(textOf("figure"), "37%");
    click(the("back"));
    processEvents();
    EXPECT_TRUE(sidebar_.isOverview());
    EXPECT_TRUE(the("overview").isVisible());
    EXPECT_EQ(item("back"), nullptr);
}

TEST_F(SystemViewTest, TheKeyboardOpensAndClosesPanelsAndKeepsItsPlace) {
    showSidebar();
    the("Memoria").forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    processEvents();
    EXPECT_EQ(sidebar_.panel(), SysPanel::memory);
    EXPECT_TRUE(the("back").hasActiveFocus());
    EXPECT_TRUE(the("back").property("visualFocus").toBool());
    press(Qt::Key_Escape);
    processEvents();
    EXPECT_TRUE(sidebar_.isOverview());
    EXPECT_TRUE(the("Memoria").hasActiveFocus());
}

TEST_F(SystemViewTest, TheOverviewIsWhereItWasAfterAPanel) {
    showSidebar(200);
    static_cast<void>(picture());
    the("overview").setProperty("contentY", 60);
    click(the("Red"));
    processEvents();
    click(the("back"));
    processEvents();
    EXPECT_EQ(the("overview").property("contentY").toDouble(), 60);
}

TEST_F(SystemViewTest, APanelOpensInThePlaceOfTheOverview) {
    showSidebar();
    const auto overview = placeOf(the("overview"));
    click(the("Disco"));
    EXPECT_EQ(placeOf(the("detail")), overview);
    EXPECT_EQ(window_.width(), 220);
}

TEST_F(SystemViewTest, QuitIsOfferedUnderThePointerAndUnderTheFocus) {
    showSidebar();
    sidebar_.select(SysPanel::cpu);
    processEvents();
    auto& row = the("code");
    auto& quit = *below(row, "quit");
    EXPECT_FALSE(row.property("offersQuit").toBool());
    EXPECT_TRUE(below(row, "value")->isVisible());
    QTest::mouseMove(&window_, placeOf(row).center().toPoint());
    processEvents();
    EXPECT_TRUE(row.property("offersQuit").toBool());
    EXPECT_FALSE(below(row, "value")->isVisible());
    QTest::mouseMove(&window_, QPoint(2, 2));
    processEvents();
    EXPECT_FALSE(row.property("offersQuit").toBool());
    quit.forceActiveFocus(Qt::TabFocusReason);
    EXPECT_TRUE(row.property("offersQuit").toBool());
    EXPECT_EQ(nameOf(quit), "Forzar cierre de code");
    EXPECT_EQ(quit.property("text").toString(), "Quit");
}

TEST_F(SystemViewTest, QuitHasItsHelpAsAToolTip) {
    showSidebar();
    sidebar_.select(SysPanel::cpu);
    processEvents();
    auto& row = the("code");
    QTest::mouseMove(&window_, placeOf(*below(row, "quit")).center().toPoint());
    EXPECT_TRUE(QTest::qWaitFor([&] { return below(row, "help") != nullptr; }, 60'000));
    EXPECT_EQ(below(row, "help")->property("text").toString(), "Forzar cierre de code");
}

TEST_F(SystemViewTest, QuitIsPressedByKeyboardAndByTheBus) {
    machine_.running.applications = {{.handle = 7, .name = "Code", .processName = "code"}};
    showSidebar();
    sidebar_.select(SysPanel::memory);
    processEvents();
    auto& quit = *below(the("code"), "quit");
    quit.forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    EXPECT_EQ(machine_.running.asked.size(), 1);
    QAccessible::queryAccessibleInterface(&quit)->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
    EXPECT_EQ(machine_.running.asked.size(), 2);
    auto& other = *below(the("Xorg"), "quit");
    other.forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    EXPECT_EQ(machine_.running.asked.size(), 2);
    EXPECT_EQ(textOf("notice"), "Xorg no tiene ventanas que cerrar.");
}

TEST_F(SystemViewTest, TheFocusStaysInItsRowWhileFiguresChange) {
    showSidebar();
    sidebar_.select(SysPanel::cpu);
    processEvents();
    auto* quit = below(the("code"), "quit");
    quit->forceActiveFocus(Qt::TabFocusReason);
    for (auto& process : machine_.counters.processes) process.cpuPercent /= 2;
    machine_.mainLoop.runFor(3 * SystemMonitor::defaultInterval);
    processEvents();
    EXPECT_EQ(below(the("code"), "quit"), quit);
    EXPECT_TRUE(quit->hasActiveFocus());
    EXPECT_EQ(nameOf(the("code")), "code: 16%");
}

TEST_F(SystemViewTest, AssistiveTechnologyReadsThePanels) {
    showSidebar();
    auto names = accessibleNames();
    for (const auto* name :
         {"SISTEMA", "Disco: Datos, 90.0 GB libres", "Memoria: 56%", "CPU: 37% carga",
          "Red: CasaNube 5G, 2.4 MB/s", "Dispositivos conectados: 1 externos", "Test Speed: —"}) {
        EXPECT_TRUE(names.contains(name)) << name << "\n" << qPrintable(names.join("\n"));
    }
    const auto expectNames = [this](SysPanel panel, const QStringList& expected) {
        sidebar_.select(panel);
        processEvents();
        const auto names = accessibleNames();
        EXPECT_TRUE(names.contains("Volver al resumen"));
        for (const auto& name : expected) {
            EXPECT_TRUE(names.contains(name)) << qPrintable(name) << "\n" << qPrintable(names.join("\n"));
        }
    };
    expectNames(SysPanel::disk, {"VOLÚMENES INTERNOS", "90.0 GB libres", "Total: 1.8 TB", "Usado: 1.7 TB"});
    expectNames(SysPanel::memory, {"9.0 GB usada", "Comprimida: 0.5 GB", "TOP CONSUMERS", "firefox: 1.8 GB"});
    expectNames(SysPanel::cpu, {"37% uso", "Disponible: 63%", "node: 104%", "Forzar cierre de node"});
    expectNames(SysPanel::network, {"Descarga: 2.4 MB/s", "CasaNube 5G", "-58 dBm — Excelente", "Probar"});
    expectNames(SysPanel::devices, {"UNIDADES EXTERNAS", "KINGSTON: 11.0 GB libres", "Expulsar KINGSTON"});
}

TEST_F(SystemViewTest, TheCapabilitiesAreReadAfterATest) {
    showSidebar();
    sidebar_.select(SysPanel::network);
    measureSpeed(std::chrono::seconds(40));  // 16 Mbps
    processEvents();
    const auto names = accessibleNames();
    EXPECT_TRUE(names.contains("gaming en línea: sí"));
    EXPECT_TRUE(names.contains("video streaming: no"));
    EXPECT_TRUE(names.contains("BAJADA: 16 Mbps"));
}

TEST_F(SystemViewTest, AVolumeIsEjectedByItsButton) {
    showSidebar();
    sidebar_.select(SysPanel::devices);
    processEvents();
    click(the("eject"));
    EXPECT_EQ(machine_.ejection.requested, std::vector<std::string>{"/media/user/KINGSTON"});
    EXPECT_FALSE(the("eject").isEnabled());
    EXPECT_TRUE(accessibleNames().contains("KINGSTON: Expulsando…"));
}

}  // namespace
}  // namespace tidewatch
