// The sidebar: its overview and its detail panels.

#include <gtest/gtest.h>

#include "shell/themes/dashboard_style.h"
#include "tests/support/presenter_probe.h"
#include "tests/system/views/system_world.h"
#include "ui/style/qt_color.h"

namespace tidewatch {
namespace {

struct SidebarTest : testing::Test, SystemViewsWorld {
    void showMachine() {
        useBelievableMachine();
        show();
    }
    void showPanel(SysPanel panel) {
        showMachine();
        sidebar_.select(panel);
    }
    void expectGolden(const QObject& presenter, const QString& name) {
        test::expectGolden(test::probe(presenter), TIDEWATCH_GOLDEN_FOLDER "/" + name);
    }
    [[nodiscard]] SystemPanelRow rowAt(int row) {
        return sidebar_.overview()->rows()->index(row).data(RowListModel::rowRole).value<SystemPanelRow>();
    }
    [[nodiscard]] SystemConsumer consumerAt(ConsumersPresenter& presenter, int row) {
        return presenter.consumers()->index(row).data(RowListModel::rowRole).value<SystemConsumer>();
    }
};

TEST_F(SidebarTest, TheOverviewOfABelievableMachine) {
    showMachine();
    expectGolden(*sidebar_.overview(), "overview.json");
}

TEST_F(SidebarTest, TheOverviewOfAnUnknownMachine) {
    show();
    expectGolden(*sidebar_.overview(), "overview-empty.json");
}

TEST_F(SidebarTest, ThePanels) {
    showMachine();
    sidebar_.select(SysPanel::disk);
    expectGolden(sidebar_.disk(), "detail-disk.json");
    sidebar_.select(SysPanel::memory);
    expectGolden(sidebar_.memory(), "detail-memory.json");
    sidebar_.select(SysPanel::cpu);
    expectGolden(sidebar_.cpu(), "detail-cpu.json");
    sidebar_.select(SysPanel::network);
    expectGolden(sidebar_.network(), "detail-network.json");
    sidebar_.select(SysPanel::devices);
    expectGolden(sidebar_.devices(), "detail-devices.json");
}

TEST_F(SidebarTest, EachRowOpensItsPanelAndBackReturns) {
    showMachine();
    constexpr std::array panels{SysPanel::disk,    SysPanel::memory,  SysPanel::cpu,
                                SysPanel::network, SysPanel::devices, SysPanel::network};
    for (std::size_t row = 0; row < panels.size(); ++row) {
        sidebar_.overview()->select(static_cast<int>(row));
        EXPECT_EQ(sidebar_.panel(), panels.at(row)) << row;
        EXPECT_FALSE(sidebar_.detail().view.isEmpty());
        qobject_cast<DetailPresenter*>(sidebar_.detail().presenter)->back();
        EXPECT_TRUE(sidebar_.isOverview());
        EXPECT_TRUE(sidebar_.detail().view.isEmpty());
    }
    sidebar_.overview()->select(-1);
    sidebar_.overview()->select(6);
    EXPECT_TRUE(sidebar_.isOverview());
}

TEST_F(SidebarTest, OnlyThePanelOnShowFollowsTheMachine) {
    showMachine();
    EXPECT_TRUE(sidebar_.overview()->isVisible());
    sidebar_.select(SysPanel::cpu);
    EXPECT_FALSE(sidebar_.overview()->isVisible());
    EXPECT_TRUE(sidebar_.cpu().isVisible());
    sidebar_.setVisible(false);
    EXPECT_FALSE(sidebar_.cpu().isVisible());
    sidebar_.setVisible(true);
    EXPECT_TRUE(sidebar_.cpu().isVisible());
    EXPECT_FALSE(sidebar_.overview()->isVisible());
}

TEST_F(SidebarTest, AnotherPanelTakesNoSampleOfItsOwn) {
    showMachine();
    tab_.setVisible(false);
    const auto readings = machine_.counters.processReadings;
    for (const auto panel : {SysPanel::cpu, SysPanel::memory, SysPanel::overview}) sidebar_.select(panel);
    EXPECT_EQ(machine_.counters.processReadings, readings);
}

TEST_F(SidebarTest, WithNoExternalVolumeTheRowSaysNinguno) {
    showMachine();
    EXPECT_EQ(rowAt(4).value, "1 externos");
    setVolumes({{.path = "/", .name = "S", .totalBytes = gigabyte, .freeBytes = 0, .isInternal = true}});
    awaitSample();
    EXPECT_EQ(rowAt(4).value, "ninguno");
    sidebar_.select(SysPanel::devices);
    EXPECT_FALSE(sidebar_.devices().hasVolumes());
    EXPECT_EQ(sidebar_.devices().noVolumes(), "Sin dispositivos externos conectados");
}

TEST_F(SidebarTest, TheDiskRowHasTheColourOfTheMainVolume) {
    showMachine();
    EXPECT_EQ(rowAt(0).value, "90.0 GB libres");
    EXPECT_EQ(rowAt(0).details, "Datos");
    EXPECT_EQ(rowAt(0).color, toQColor(DashboardStyle::tierDistracting));
    setVolumes({});
    awaitSample();
    EXPECT_EQ(rowAt(0).value, "—");
    EXPECT_EQ(rowAt(0).color, toQColor(DashboardStyle::amber));
}

TEST_F(SidebarTest, TheProcessorsRowHasItsColour) {
    showMachine();
    EXPECT_EQ(rowAt(2).value, "37% carga");
    EXPECT_EQ(rowAt(2).color, toQColor(DashboardStyle::tierProductive));
    useProcessors(0.6, 0.25);
    awaitSample();
    EXPECT_EQ(rowAt(2).value, "85% carga");
    EXPECT_EQ(rowAt(2).color, toQColor(DashboardStyle::tierDistracting));
}

TEST_F(SidebarTest, TheNetworkRowNamesTheNetworkOrItsKind) {
    showMachine();
    EXPECT_EQ(rowAt(3).symbol, "wifi");
    EXPECT_EQ(rowAt(3).details, "CasaNube 5G");
    machine_.counters.link = platform::PrimaryLink{"enp3s0", std::nullopt};
    awaitSample();
    EXPECT_EQ(rowAt(3).symbol, "network");
    EXPECT_EQ(rowAt(3).details, "Ethernet");
    machine_.counters.link = std::nullopt;
    awaitSample();
    EXPECT_EQ(rowAt(3).details, "—");
}

TEST_F(SidebarTest, TheLastMeasuredSpeedIsShown) {
    showMachine();
    EXPECT_EQ(rowAt(5).value, "—");
    measureSpeed(std::chrono::seconds(8));
    EXPECT_EQ(rowAt(5).value, "80 Mbps");
}

TEST_F(SidebarTest, AWiredConnectionIsCalledSafe) {
    useBelievableMachine();
    machine_.counters.link = platform::PrimaryLink{"enp3s0", std::nullopt};
    show();
    sidebar_.select(SysPanel::network);
    EXPECT_EQ(sidebar_.network().linkName(), "Conexión cableada");
    EXPECT_EQ(sidebar_.network().linkDetails(), "Conexión física segura");
}

TEST_F(SidebarTest, AWirelessConnectionHasASignalWithItsQuality) {
    showPanel(SysPanel::network);
    EXPECT_EQ(sidebar_.network().linkName(), "CasaNube 5G");
    EXPECT_EQ(sidebar_.network().linkDetails(), "-58 dBm — Excelente");
}

TEST_F(SidebarTest, ConsumersHavePercentagesAndSizes) {
    showPanel(SysPanel::cpu);
    EXPECT_EQ(consumerAt(sidebar_.cpu(), 0).accessibleText(), "node: 104%");
    EXPECT_EQ(consumerAt(sidebar_.cpu(), 1).accessibleText(), "firefox: 42%");
    sidebar_.select(SysPanel::memory);
    EXPECT_EQ(consumerAt(sidebar_.memory(), 0).accessibleText(), "node: 512 MB");
    EXPECT_EQ(consumerAt(sidebar_.memory(), 1).accessibleText(), "firefox: 1.8 GB");
    EXPECT_EQ(consumerAt(sidebar_.memory(), 1).quitHelp, "Forzar cierre de firefox");
}

TEST_F(SidebarTest, ARowKeepsItsIdentityWhileItsFigureChanges) {
    showPanel(SysPanel::cpu);
    machine_.counters.processes = {{"code", 50, 1}, {"code", 40, 1}, {"firefox", 30, 1}};
    machine_.mainLoop.runFor(3 * SystemMonitor::defaultInterval);
    const auto first = consumerAt(sidebar_.cpu(), 0).id;
    EXPECT_NE(consumerAt(sidebar_.cpu(), 1).id, first);
    machine_.counters.processes[0].cpuPercent = 60;
    machine_.mainLoop.runFor(3 * SystemMonitor::defaultInterval);
    EXPECT_EQ(consumerAt(sidebar_.cpu(), 0).id, first);
    EXPECT_EQ(consumerAt(sidebar_.cpu(), 0).value, "60%");
}

TEST_F(SidebarTest, QuitAsksTheApplicationsOfThatNameAndNothingElse) {
    showPanel(SysPanel::cpu);
    machine_.running.applications = {
        {.handle = 1, .id = AppId("firefox"), .name = "Firefox", .processName = "firefox"},
        {.handle = 2, .id = AppId("code"), .name = "Visual Studio Code", .processName = "code"},
    };
    sidebar_.cpu().quit(consumerAt(sidebar_.cpu(), 2).id);
    EXPECT_EQ(machine_.running.asked, std::vector<std::uint64_t>{2});
    EXPECT_EQ(sidebar_.cpu().notice(), "");
    sidebar_.cpu().quit("another");
    EXPECT_EQ(machine_.running.asked.size(), 1);
}

TEST_F(SidebarTest, AProcessWithoutWindowsIsNotReachedAndThePanelSaysSo) {
    showPanel(SysPanel::cpu);
    sidebar_.cpu().quit(consumerAt(sidebar_.cpu(), 3).id);
    EXPECT_TRUE(machine_.running.asked.empty());
    EXPECT_EQ(sidebar_.cpu().notice(), "Xorg no tiene ventanas que cerrar.");
    sidebar_.back();
    sidebar_.select(SysPanel::cpu);
    EXPECT_EQ(sidebar_.cpu().notice(), "");
}

TEST_F(SidebarTest, AVolumeIsEjectedByItsMountPoint) {
    showPanel(SysPanel::devices);
    const auto device = [this] {
        return sidebar_.devices().volumes()->index(0).data(RowListModel::rowRole).value<SystemVolume>();
    };
    EXPECT_EQ(device().ejectHelp, "Expulsar KINGSTON");
    sidebar_.devices().eject(device().id);
    sidebar_.devices().eject("another");
    EXPECT_EQ(machine_.ejection.requested, std::vector<std::string>{"/media/user/KINGSTON"});
    EXPECT_TRUE(device().isEjecting);
    machine_.ejection.finish();
    EXPECT_FALSE(device().isEjecting);
    EXPECT_TRUE(warnings_.empty());
}

TEST_F(SidebarTest, AFailedEjectionIsSaidWithItsReason) {
    showPanel(SysPanel::devices);
    const auto id =
        sidebar_.devices().volumes()->index(0).data(RowListModel::rowRole).value<SystemVolume>().id;
    machine_.log.expectWarning("busy");
    sidebar_.devices().eject(id);
    machine_.ejection.finish(platform::EjectionError{platform::EjectionErrorKind::inUse, "busy"});
    ASSERT_EQ(warnings_.size(), 1);
    EXPECT_EQ(
        warnings_[0],
        "No se pudo expulsar KINGSTON|Algún programa tiene archivos abiertos en esta unidad. Ciérralos e "
        "inténtalo de nuevo.");
}

// The panes of other rooms.

struct Guest final : TabPresenter {
    void update() override {}
};

TEST_F(SidebarTest, ThePanesBelowTheRowsAreVisibleTogetherWithTheOverview) {
    Guest guest;
    SystemViews views(machine_.clock, overview_, {},
                      {{.id = "guest", .title = "", .view = {}, .presenter = &guest}});
    auto& sidebar = views.sidebarPanels();
    ASSERT_EQ(sidebar.overview()->below().size(), 1);
    EXPECT_FALSE(guest.isVisible());
    sidebar.setVisible(true);
    EXPECT_TRUE(guest.isVisible());
    sidebar.select(SysPanel::disk);
    EXPECT_FALSE(guest.isVisible());
    sidebar.back();
    EXPECT_TRUE(guest.isVisible());
    sidebar.setVisible(false);
    EXPECT_FALSE(guest.isVisible());
}

TEST_F(SidebarTest, TheTabsAreThoseOfTheDashboardAndTheSidebarHasItsWidth) {
    const auto tabs = views_.tabs();
    ASSERT_EQ(tabs.size(), 2);
    EXPECT_EQ(tabs[0].id, "Sistema");
    EXPECT_EQ(tabs[1].id, "Disco");
    EXPECT_EQ(views_.sidebar().width, 220);
}

}  // namespace
}  // namespace tidewatch
