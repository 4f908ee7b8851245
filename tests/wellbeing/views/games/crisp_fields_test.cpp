// The boards at the scale factor in the environment, 1 by default.

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <set>
#include <vector>

#include "ui/style/qt_color.h"
#include "wellbeing/views/games/games_scene.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;

struct CrispFields : testing::Test, GamesScene {
    void SetUp() override {
        const double factor = qEnvironmentVariable("QT_SCALE_FACTOR", "1").toDouble();
        ASSERT_EQ(window_.effectiveDevicePixelRatio(), factor);
    }

    /// What is on the screen must be what a fresh drawing of everything gives.
    void expectNothingStale(const char* field) {
        const auto repainted = picture();
        item(field)->update();
        EXPECT_EQ(repainted, picture());
    }

    /// A line of the field's pixels at this place in points, without the field's edge.
    [[nodiscard]] std::vector<QRgb> line(const char* field, QPointF from, QPointF to) {
        const auto seen = picture();
        const double ratio = window_.effectiveDevicePixelRatio();
        // It is shown at the nearest pixel.
        const QPointF corner = (item(field)->mapToScene({0, 0}) * ratio).toPoint();
        const auto begin = corner + from * ratio;
        const auto end = corner + to * ratio;
        std::vector<QRgb> pixels;
        const auto count = static_cast<int>((end - begin).manhattanLength());
        for (int i = 0; i < count; ++i)
            pixels.push_back(seen.pixel(pixelAt(begin + (end - begin) * i / count)));
        return pixels;
    }

    static QPoint pixelAt(QPointF place) {
        return {static_cast<int>(std::floor(place.x())), static_cast<int>(std::floor(place.y()))};
    }

    /// How long each run of `color` is.
    static std::vector<int> runs(const std::vector<QRgb>& pixels, QRgb color) {
        std::vector<int> lengths;
        bool before = false;
        for (const auto pixel : pixels) {
            if (pixel == color && !before) lengths.push_back(0);
            before = pixel == color;
            if (before) ++lengths.back();
        }
        return lengths;
    }

    static std::size_t colors(const std::vector<QRgb>& pixels) {
        return std::set(pixels.begin(), pixels.end()).size();
    }

    [[nodiscard]] int pixels(double points) const {
        return static_cast<int>(std::round(points * window_.effectiveDevicePixelRatio()));
    }

    [[nodiscard]] QRgb piece(std::size_t index) const {
        const auto& color = theme_.active().dashboard.gamePieces.at(index);
        return toQColor(color).rgb();
    }
};

TEST_F(CrispFields, TheCellsAreSharpAndOfOneSize) {
    random_.addPieces("JJIJ");
    play();
    showPanel();
    const auto across = line("tetrisField", {2, 22.5}, {148, 22.5});
    EXPECT_EQ(colors(across), 2u) << "the bar and the ground, and nothing in between";
    EXPECT_EQ(runs(across, piece(0)), std::vector(4, pixels(13)));
    pressKeys("^");
    const auto down = line("tetrisField", {82.5, 1.4}, {82.5, 268});
    EXPECT_EQ(colors(down), 3u) << "the bar, its ghost, and the ground";
    EXPECT_EQ(runs(down, piece(0)), std::vector(4, pixels(13)));
}

TEST_F(CrispFields, TheBricksAreSharpAndOfOneSize) {
    presenter_.switchGame();
    play();
    showPanel();
    const auto across = line("breakoutField", {2, 15}, {148, 15});
    EXPECT_EQ(colors(across), 2u);
    EXPECT_EQ(runs(across, piece(0)), std::vector(6, pixels(21.5)));
    const auto down = line("breakoutField", {13, 2}, {13, 90});
    EXPECT_EQ(colors(down), 6u) << "five rows and the ground";
    for (std::size_t row = 0; row < 5; ++row) EXPECT_EQ(runs(down, piece(row)), std::vector{pixels(11)});
}

TEST_F(CrispFields, ThePaddleKeepsItsSizeWhereverItIs) {
    presenter_.switchGame();
    play();
    showPanel();
    for (const double at : {40.0, 60.3, 75.5, 99.7}) {
        presenter_.breakout()->setPaddle(at);
        const auto across = line("breakoutField", {2, 236}, {148, 236});
        EXPECT_EQ(colors(across), 2u) << at;
        EXPECT_EQ(runs(across, toQColor(theme_.active().dashboard.primaryText).rgb()),
                  std::vector{pixels(40)})
            << at;
    }
}

TEST_F(CrispFields, NothingStaleIsLeftWithinPixels) {
    playSomeTetris();
    showPanel();
    static_cast<void>(picture());
    for (const char* presses : {"<", "^", ">>", "v", "_", "v>", "_"}) {
        pressKeys(presses);
        expectNothingStale("tetrisField");
    }
}

TEST_F(CrispFields, NothingStaleIsLeftWhereTheBallWas) {
    playSomeBricks();
    showPanel();
    static_cast<void>(picture());
    for (int i = 0; i < 20; ++i) {
        wait(100ms);
        expectNothingStale("breakoutField");
    }
}

}  // namespace
}  // namespace tidewatch
