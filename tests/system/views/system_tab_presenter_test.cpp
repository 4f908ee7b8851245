// The tab "Sistema": its texts and figures.

#include <gtest/gtest.h>

#include "shell/themes/dashboard_style.h"
#include "system/views/system_texts.h"
#include "tests/support/presenter_probe.h"
#include "tests/system/views/system_world.h"
#include "ui/style/qt_color.h"

namespace tidewatch {
namespace {

struct SystemTabTest : testing::Test, SystemViewsWorld {
    [[nodiscard]] static QStringList texts(const RowListModel& model) {
        QStringList shown;
        for (int row = 0; row < model.rowCount(); ++row) {
            shown.append(model.index(row).data(RowListModel::rowRole).value<SystemFigure>().accessibleText());
        }
        return shown;
    }
};

TEST_F(SystemTabTest, ABelievableMachine) {
    useBelievableMachine();
    show();
    test::expectGolden(test::probe(tab_), TIDEWATCH_GOLDEN_FOLDER "/system-tab.json");
}

TEST_F(SystemTabTest, NothingIsKnownYet) {
    show();
    test::expectGolden(test::probe(tab_), TIDEWATCH_GOLDEN_FOLDER "/system-tab-empty.json");
}

TEST_F(SystemTabTest, ProcessorsInWholePercents) {
    useBelievableMachine();
    show();
    EXPECT_EQ(tab_.cpu(), "37%");
    EXPECT_EQ(texts(*tab_.cpuParts()), QStringList({"usuario: 24%", "sistema: 13%"}));
}

TEST_F(SystemTabTest, MemoryInGigabytesWithOneDecimal) {
    useBelievableMachine();
    show();
    EXPECT_EQ(tab_.memory(), "56%");
    EXPECT_EQ(tab_.memoryUse(), "9.0 GB de 16.0 GB");
    EXPECT_EQ(texts(*tab_.memoryParts()), QStringList({"activa: 7.5 GB", "wired: 1.0 GB", "compr.: 0.5 GB",
                                                       "libre: 2.0 GB", "swap: 0.2 GB"}));
}

TEST_F(SystemTabTest, AWirelessNetworkHasItsNameAndSignal) {
    useBelievableMachine();
    show();
    EXPECT_EQ(tab_.networkSymbol(), "wifi");
    EXPECT_EQ(tab_.network(), "CasaNube 5G");
    EXPECT_EQ(tab_.signal(), "-58 dBm");
    EXPECT_EQ(tab_.download(), "2.4 MB/s");
    EXPECT_EQ(tab_.upload(), "195 KB/s");
}

TEST_F(SystemTabTest, AWiredConnectionSaysSo) {
    useBelievableMachine();
    machine_.counters.link = platform::PrimaryLink{"enp3s0", std::nullopt};
    show();
    EXPECT_EQ(tab_.networkSymbol(), "network");
    EXPECT_EQ(tab_.network(), "Conexión cableada");
    EXPECT_EQ(tab_.signal(), "");
}

TEST_F(SystemTabTest, WithoutAGpuFigureThereIsATextAndNoPercentage) {
    useBelievableMachine();
    machine_.counters.gpus.clear();
    show();
    EXPECT_FALSE(tab_.hasGpu());
    EXPECT_EQ(tab_.gpu(), "");
    EXPECT_EQ(tab_.gpuText(), "No disponible en este equipo");
}

TEST_F(SystemTabTest, AGpuHasItsPercentage) {
    useBelievableMachine();
    show();
    EXPECT_EQ(tab_.gpu(), "12%");
    EXPECT_EQ(tab_.gpuText(), "Utilización del procesador gráfico");
}

TEST_F(SystemTabTest, OnlyInternalVolumesAreListedTheLargestFirst) {
    useBelievableMachine();
    show();
    ASSERT_EQ(tab_.disks()->rowCount(), 2);
    const auto disk = tab_.disks()->index(1).data(RowListModel::rowRole).value<SystemVolume>();
    EXPECT_EQ(disk.name, "Sistema");
    EXPECT_EQ(disk.usedShare, "75.2% usado");
    EXPECT_EQ(disk.freeOfTotal, "118 GB libres de 476 GB");
}

TEST_F(SystemTabTest, AHostileNameIsOneLine) {
    useBelievableMachine();
    machine_.counters.link = platform::PrimaryLink{"wlp2s0", platform::WirelessLink{"dos\nlíneas", -60}};
    setVolumes({{.path = "/", .name = "\n\t", .totalBytes = gigabyte, .freeBytes = 0, .isInternal = true}});
    show();
    EXPECT_EQ(tab_.network(), "dos líneas");
    EXPECT_EQ(tab_.disks()->index(0).data(RowListModel::rowRole).value<SystemVolume>().name, "Sin nombre");
}

TEST_F(SystemTabTest, AVolumeWithoutANameHasTheDesktopsWordForIt) {
    machine_.desktop.setWords({.revealInFileManager = "Ver", .unnamedVolume = "Equipo"});
    useBelievableMachine();
    setVolumes({{.path = "/", .name = "", .totalBytes = gigabyte, .freeBytes = 0, .isInternal = true}});
    show();
    EXPECT_EQ(tab_.disks()->index(0).data(RowListModel::rowRole).value<SystemVolume>().name, "Equipo");
}

TEST_F(SystemTabTest, EqualFiguresAreNotAnnounced) {
    useBelievableMachine();
    show();
    awaitSample();
    awaitSample();
    int changes = 0;
    QObject::connect(&tab_, &SystemTabPresenter::figuresChanged, &tab_, [&] { ++changes; });
    awaitSample();
    EXPECT_EQ(changes, 0);
    useProcessors(0.9, 0);
    awaitSample();
    EXPECT_EQ(changes, 1);
}

// The monitor runs while it is looked at.

TEST_F(SystemTabTest, NothingIsSampledBeforeAndAfterItIsShown) {
    useBelievableMachine();
    machine_.mainLoop.runFor(std::chrono::minutes(1));
    EXPECT_EQ(machine_.counters.processReadings, 0);
    tab_.setVisible(true);
    EXPECT_EQ(machine_.counters.processReadings, 1);
    tab_.setVisible(false);
    machine_.mainLoop.runFor(std::chrono::minutes(1));
    EXPECT_EQ(machine_.counters.processReadings, 1);
    EXPECT_EQ(machine_.volumes.refreshes, 1);
}

TEST_F(SystemTabTest, TheMonitorRunsOnWhileTheSidebarIsShown) {
    useBelievableMachine();
    tab_.setVisible(true);
    sidebar_.setVisible(true);
    tab_.setVisible(false);
    machine_.mainLoop.runFor(std::chrono::seconds(6));
    EXPECT_EQ(machine_.counters.processReadings, 2);
    sidebar_.setVisible(false);
    machine_.mainLoop.runFor(std::chrono::minutes(1));
    EXPECT_EQ(machine_.counters.processReadings, 2);
}

TEST_F(SystemTabTest, ASpeedTestEndsWhenNobodyLooksAnyLonger) {
    useBelievableMachine();
    show();
    startDownload();
    download(0.1, std::chrono::seconds(1));
    sidebar_.setVisible(false);
    machine_.mainLoop.run();
    EXPECT_EQ(overview_.speedTester.phase(), SpeedTester::Phase::downloading);
    tab_.setVisible(false);
    machine_.mainLoop.run();
    EXPECT_EQ(overview_.speedTester.phase(), SpeedTester::Phase::done);
    EXPECT_FALSE(machine_.http.isOpen(machine_.http.requestCount() - 1));
}

// Thresholds.

TEST(SystemTexts, ProcessorsAreGreenBelowHalfAndAmberBelowFourFifths) {
    EXPECT_EQ(cpuColor(0.499), toQColor(DashboardStyle::tierProductive));
    EXPECT_EQ(cpuColor(0.5), toQColor(DashboardStyle::amber));
    EXPECT_EQ(cpuColor(0.799), toQColor(DashboardStyle::amber));
    EXPECT_EQ(cpuColor(0.8), toQColor(DashboardStyle::tierDistracting));
}

TEST(SystemTexts, AVolumeIsRedAboveNineTenths) {
    EXPECT_EQ(diskColor(0.9), toQColor(DashboardStyle::amber));
    EXPECT_EQ(diskColor(0.901), toQColor(DashboardStyle::tierDistracting));
    EXPECT_EQ(mainDiskColor({}), toQColor(DashboardStyle::amber));
}

TEST(SystemTexts, TheMainVolumeIsTheFirstInternalOne) {
    SystemSnapshot snap;
    snap.disks = {{.name = "stick", .totalBytes = 100, .freeBytes = 1, .isInternal = false},
                  {.name = "disk", .totalBytes = 50, .freeBytes = 1}};
    ASSERT_NE(mainVolume(snap), nullptr);
    EXPECT_EQ(mainVolume(snap)->name, "disk");
    EXPECT_EQ(mainDiskColor(snap), toQColor(DashboardStyle::tierDistracting));
}

TEST(SystemTexts, SignalsHaveThreeQualities) {
    EXPECT_EQ(signalQuality(-30), "Excelente");
    EXPECT_EQ(signalQuality(-60), "Excelente");
    EXPECT_EQ(signalQuality(-61), "Buena");
    EXPECT_EQ(signalQuality(-75), "Buena");
    EXPECT_EQ(signalQuality(-76), "Débil");
}

}  // namespace
}  // namespace tidewatch
