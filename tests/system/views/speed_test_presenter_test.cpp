// The speed test: its texts by phase, and its gauge.

#include <gtest/gtest.h>

#include "system/views/gauge_dial.h"
#include "tests/system/views/system_world.h"

namespace tidewatch {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

struct SpeedTestTest : testing::Test, SystemViewsWorld {
    SpeedTestTest() {
        useBelievableMachine();
        tab_.setVisible(true);
        sidebar_.setVisible(true);
        sidebar_.select(SysPanel::network);
    }

    [[nodiscard]] QStringList stats(RowListModel* model) {
        QStringList shown;
        for (int row = 0; row < model->rowCount(); ++row) {
            shown.append(
                model->index(row).data(RowListModel::rowRole).value<SystemFigure>().accessibleText());
        }
        return shown;
    }
    [[nodiscard]] QStringList capabilities() {
        QStringList shown;
        auto* model = network_.capabilities();
        for (int row = 0; row < model->rowCount(); ++row) {
            const auto line = model->index(row).data(RowListModel::rowRole).value<SystemCapability>();
            shown.append(line.id + "|" + line.symbol);
        }
        return shown;
    }

    SpeedTestPresenter& speed_ = *tab_.speedTest();
    NetworkDetailPresenter& network_ = sidebar_.network();
};

TEST_F(SpeedTestTest, Idle) {
    EXPECT_EQ(speed_.buttonText(), "Probar");
    EXPECT_EQ(speed_.status(), "toca Probar para medir");
    EXPECT_EQ(speed_.valueText(), "0");
    EXPECT_EQ(speed_.caption(), "Mbps ↓");
    EXPECT_EQ(speed_.scaleMax(), 50);
    EXPECT_EQ(network_.buttonText(), "Probar");
    EXPECT_EQ(network_.status(), "");
    EXPECT_FALSE(network_.hasResult());
}

TEST_F(SpeedTestTest, BeforeAnyData) {
    speed_.press();
    EXPECT_EQ(speed_.buttonText(), "Detener");
    EXPECT_EQ(speed_.status(), "midiendo latencia…");
    EXPECT_EQ(network_.buttonText(), "Detener");
    EXPECT_EQ(network_.status(), "conectando…");
}

TEST_F(SpeedTestTest, Downloading) {
    startDownload();
    download(0.25, milliseconds(250));
    // 20 MB in a quarter of a second, smoothed.
    EXPECT_EQ(speed_.status(), "25% · 416 Mbps en vivo");
    EXPECT_EQ(speed_.value(), 416);
    EXPECT_EQ(speed_.scaleMax(), 500);
    EXPECT_TRUE(speed_.isRunning());
    EXPECT_EQ(speed_.progressText(), "25%");
    EXPECT_EQ(network_.status(), "416 Mbps · 25%");
}

TEST_F(SpeedTestTest, Done) {
    measureSpeed(seconds(8));
    EXPECT_EQ(speed_.buttonText(), "Probar");
    EXPECT_EQ(speed_.valueText(), "80");
    EXPECT_FALSE(speed_.isRunning());
    EXPECT_TRUE(speed_.status().startsWith("promedio 80 · pico ")) << speed_.status().toStdString();
    EXPECT_TRUE(speed_.status().endsWith(" Mbps · ping 14 ms")) << speed_.status().toStdString();
    EXPECT_EQ(stats(speed_.stats()).front(), "PROMEDIO: 80 Mbps");
    EXPECT_EQ(stats(speed_.stats()).back(), "PING: 14 ms");
    EXPECT_TRUE(network_.hasResult());
    EXPECT_EQ(stats(network_.stats()).front(), "BAJADA: 80 Mbps");
}

TEST_F(SpeedTestTest, FailedShowsTheMessageAndOffersAnother) {
    startDownload();
    machine_.http.end(platform::HttpFailure{false, "Se agotó el tiempo"});
    EXPECT_EQ(speed_.buttonText(), "Reintentar");
    EXPECT_EQ(speed_.status(), "Error: Se agotó el tiempo");
    EXPECT_EQ(speed_.value(), 0);
    EXPECT_EQ(network_.status(), "Error: Se agotó el tiempo");
    const auto requests = machine_.http.requestCount();
    speed_.press();
    EXPECT_EQ(machine_.http.requestCount(), requests + 1);
}

TEST_F(SpeedTestTest, AfterACancelWithDataReceivedTheGaugeShowsTheTextOfDone) {
    startDownload();
    download(0.5, seconds(4));
    speed_.press();
    machine_.mainLoop.run();
    EXPECT_TRUE(speed_.status().startsWith("promedio 80 · pico ")) << speed_.status().toStdString();
    EXPECT_EQ(speed_.valueText(), "80");
    EXPECT_EQ(speed_.buttonText(), "Probar");
}

TEST_F(SpeedTestTest, AfterACancelWithoutDataItSaysSo) {
    startDownload();
    network_.press();
    machine_.mainLoop.run();
    EXPECT_EQ(speed_.status(), "Error: sin datos recibidos");
}

TEST_F(SpeedTestTest, ACapabilityExactlyAtItsThresholdGetsTheCheckMark) {
    EXPECT_EQ(capabilityRows(25.0).at(1).symbol, "checkmark.circle.fill");
    EXPECT_EQ(capabilityRows(24.999).at(1).symbol, "xmark.circle");
}

TEST_F(SpeedTestTest, TheCapabilitiesInTheirOrder) {
    measureSpeed(seconds(40));  // 16 Mbps
    EXPECT_EQ(capabilities(),
              QStringList({"gaming en línea|checkmark.circle.fill", "video streaming|xmark.circle",
                           "video 4K streaming|xmark.circle", "video calls|checkmark.circle.fill",
                           "audio calls|checkmark.circle.fill"}));
    for (const auto& [mbps, reached] :
         std::initializer_list<std::pair<double, int>>{{0.9, 0}, {1, 1}, {2, 2}, {5, 3}, {25, 4}, {50, 5}}) {
        const auto rows = capabilityRows(mbps);
        EXPECT_EQ(std::ranges::count(rows, "checkmark.circle.fill", &SystemCapability::symbol), reached)
            << mbps;
    }
}

// The dial.

TEST(GaugeDialTest, TheDialSweepsFromLeftToRightAroundTheTop) {
    GaugeDial dial;
    dial.setScaleMax(100);
    for (const auto& [value, angle] : std::initializer_list<std::pair<double, double>>{
             {0, -135}, {50, 0}, {75, 67.5}, {100, 135}, {130, 135}, {-5, -135}}) {
        dial.setValue(value);
        EXPECT_DOUBLE_EQ(dial.angle(), angle) << value;
    }
    EXPECT_EQ(dial.sweep(), 270);
}

TEST(GaugeDialTest, ADialWithoutAScaleStandsAtItsBeginning) {
    GaugeDial dial;
    dial.setScaleMax(0);
    dial.setValue(10);
    EXPECT_DOUBLE_EQ(dial.angle(), -135);
}

}  // namespace
}  // namespace tidewatch
