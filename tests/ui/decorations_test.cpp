// The decorations of dashboard and panel, measured in pixels of sixteen bits a channel, since eight cannot
// distinguish such faint colours.

#include "ui/backgrounds/decorations.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <vector>

#include "ui/backgrounds/panel_painter.h"
#include "ui/ui_scene.h"

namespace tidewatch {
namespace {

constexpr double smallest = 1.0 / 255 / 8;

/// What the decoration paints on nothing, `scale` pixels to the point.
template <class Decoration>
QImage painted(QSize size, int scale = 1) {
    Decoration decoration;
    decoration.setSize(size);
    QImage image(size * scale, QImage::Format_RGBA64_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, decoration.antialiasing());
    painter.scale(scale, scale);
    decoration.paint(&painter);
    return image;
}

/// The rows on which more is painted than rounding errors.
std::vector<int> rowsWithALine(const QImage& image, int x) {
    std::vector<int> rows;
    for (int y = 0; y < image.height(); ++y) {
        if (image.pixelColor(x, y).alphaF() > 0.01F) rows.push_back(y);
    }
    return rows;
}

TEST(HackerScanlines, StandAtEveryThirdRowOnePointHighFromTheThirdOnAcrossTheWholeWidth) {
    const auto image = painted<HackerScanlines>({50, 20});
    const std::vector<int> expected{3, 6, 9, 12, 15, 18};
    for (const int x : {0, 25, 49}) EXPECT_EQ(rowsWithALine(image, x), expected) << "column " << x;
}

TEST(HackerScanlines, StayAboveTheBottomEdge) {
    EXPECT_EQ(rowsWithALine(painted<HackerScanlines>({4, 9}), 1), (std::vector<int>{3, 6}));
    EXPECT_EQ(rowsWithALine(painted<HackerScanlines>({4, 10}), 1), (std::vector<int>{3, 6, 9}));
    EXPECT_TRUE(rowsWithALine(painted<HackerScanlines>({4, 3}), 1).empty());
}

TEST(HackerScanlines, AreAsHighAsAPointOnAFinerScreen) {
    EXPECT_EQ(rowsWithALine(painted<HackerScanlines>({4, 7}, 2), 1), (std::vector<int>{6, 7, 12, 13}));
}

TEST(HackerScanlines, AreFaintPhosphor) {
    const auto line = painted<HackerScanlines>({4, 9}).pixelColor(1, 3);
    EXPECT_NEAR(line.alphaF(), 0.05, smallest);
    EXPECT_NEAR(line.redF(), 0, 0.005);
    EXPECT_NEAR(line.greenF(), 1, 0.005);
    EXPECT_NEAR(line.blueF(), 0.255, 0.005);
}

/// How much a pixel of the grain darkens (below 0) or lightens a middle grey.
double shadeOf(const QColor& pixel) {
    return static_cast<double>(pixel.alphaF()) * (static_cast<double>(pixel.lightnessF()) - 0.5) * 2;
}

TEST(EditorialPaperGrain, IsLightInTheMiddleClearHalfwayAndDarkFromSevenHundredPointsOn) {
    // Columns of points between two hairlines, from the centre of a sheet to its right edge.
    const auto image = painted<EditorialPaperGrain>({1800, 108});
    const auto at = [&](int distance) { return shadeOf(image.pixelColor(900 + distance, 54)); };
    EXPECT_NEAR(at(0), 0.12, 0.001);
    EXPECT_NEAR(at(175), 0.06, 0.001);
    EXPECT_NEAR(at(350), 0, 0.001);
    EXPECT_NEAR(at(525), -0.009, 0.001);
    EXPECT_NEAR(at(700), -0.018, 0.001);
    EXPECT_NEAR(at(880), -0.018, 0.001);
    EXPECT_NEAR(at(-175), 0.06, 0.001);
    EXPECT_NEAR(at(-700), -0.018, 0.001);
}

TEST(EditorialPaperGrain, TheLightIsRoundAndInTheCentreOfTheWindow) {
    const auto image = painted<EditorialPaperGrain>({1500, 1500});
    const auto shade = [&](int x, int y) { return shadeOf(image.pixelColor(x, y)); };
    // No multiple of the hairlines' distance.
    EXPECT_NEAR(shade(750, 750), 0.12, 0.001);
    EXPECT_NEAR(shade(750 + 240, 750 + 180), 0.12 * (1 - 300.0 / 350), 0.001);
    EXPECT_NEAR(shade(750, 750 - 175), 0.06, 0.001);
    EXPECT_NEAR(shade(10, 10), -0.018, 0.001);
}

/// The rows, in fifths of a point, that the ink of a hairline darkens fully; far right, where the light is
/// even.
std::vector<int> hairlines(int height) {
    const auto image = painted<EditorialPaperGrain>({1600, height}, 5);
    std::vector<int> rows;
    for (int y = 0; y < image.height(); ++y) {
        if (shadeOf(image.pixelColor(7900, y)) < -0.03) rows.push_back(y);
    }
    return rows;
}

TEST(EditorialPaperGrain, AHairlineOfFourTenthsStandsAtEveryTwentySecondPointDownToTheBottom) {
    // Five pixels to the point: a line is two of them.
    EXPECT_EQ(hairlines(67), (std::vector<int>{110, 111, 220, 221, 330, 331}));
    EXPECT_EQ(hairlines(44), (std::vector<int>{110, 111}));
    EXPECT_TRUE(hairlines(22).empty());
}

TEST(EditorialPaperGrain, AHairlineIsFaintInkAcrossTheWholeWidth) {
    const auto image = painted<EditorialPaperGrain>({1600, 24}, 5);
    for (const int x : {0, 3999, 7999}) {
        const auto paper = shadeOf(image.pixelColor(x, 100));
        const auto ink = shadeOf(image.pixelColor(x, 110));
        EXPECT_NEAR(ink, paper - 0.022 * (1 + paper), 0.001) << "column " << x;
        for (const int y : {109, 112}) {
            EXPECT_NEAR(shadeOf(image.pixelColor(x, y)), paper, 0.001) << "beside it, column " << x;
        }
    }
}

TEST(EditorialPaperGrain, AHairlineIsNotLostOnAScreenOfOnePixelToThePoint) {
    const auto image = painted<EditorialPaperGrain>({1600, 60});
    const auto ink = shadeOf(image.pixelColor(1590, 44)) - shadeOf(image.pixelColor(1590, 40));
    EXPECT_NEAR(ink, -0.4 * 0.022, 0.002);
}

// In the window of the dashboard, on the theme's ground.

class DecorationTest : public testing::Test, public UiScene {
protected:
    QImage dashboard(const char* theme, QSize size) {
        theme_.switchTo(theme);
        show(QString("DashboardBackground { width: %1; height: %2 }").arg(size.width()).arg(size.height()),
             size);
        return picture();
    }
};

TEST_F(DecorationTest, TheHackersDashboardIsBlackWithGreenLines) {
    const auto image = dashboard("hacker", {60, 40});
    for (int y = 0; y < 40; ++y) {
        const bool line = y > 0 && y % 3 == 0;
        const auto pixel = image.pixelColor(30, y);
        EXPECT_NEAR(pixel.green(), line ? 255 * 0.05 : 0, 0.6) << "row " << y;
        EXPECT_NEAR(pixel.blue(), line ? 255 * 0.05 * 0.255 : 0, 0.6) << "row " << y;
        EXPECT_EQ(pixel.red(), 0) << "row " << y;
    }
}

TEST_F(DecorationTest, TheEditorialsDashboardIsPaperLighterInItsMiddle) {
    const auto image = dashboard("editorial", {1500, 108});
    EXPECT_NEAR(image.pixelColor(750, 54).blue(), 0xEA + (255 - 0xEA) * 0.12, 1);
    EXPECT_NEAR(image.pixelColor(400, 54).blue(), 0xEA, 1);
    EXPECT_NEAR(image.pixelColor(5, 54).blue(), 0xEA * (1 - 0.018), 1);
    EXPECT_LT(image.pixelColor(5, 44).blue(), image.pixelColor(5, 54).blue()) << "a hairline";
}

// The panel.

QColor panelPixel(PanelBackground background, int x, int y) {
    QImage image(260, 110, QImage::Format_RGBA64_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paintPanel(painter, background, {QSizeF(260, 110), 4, 1, Ground::translucent});
    painter.end();
    return image.pixelColor(x, y);
}

TEST(HackerPanel, HasItsLinesAtEverySecondRowInScreenOverDarkGreen) {
    // Black under (0, 0.05, 0.02) at 0.4.
    const double green = 0.05 * 0.4;
    const double blue = 0.02 * 0.4;
    const auto screened = [](double ground, double light) { return ground + light - ground * light; };
    for (int y = 2; y < 108; ++y) {
        const bool line = y % 2 == 0;
        const auto pixel = panelPixel(PanelBackground::hacker, 130, y);
        EXPECT_NEAR(pixel.greenF(), line ? screened(green, 0.06) : green, smallest) << "row " << y;
        EXPECT_NEAR(pixel.blueF(), line ? screened(blue, 0.06 * 0.255) : blue, smallest) << "row " << y;
        EXPECT_NEAR(pixel.redF(), 0, smallest) << "row " << y;
    }
}

TEST(HackerPanel, HasABorderOfOnePointOfPhosphor) {
    const double green = 0.05 * 0.4;
    EXPECT_NEAR(panelPixel(PanelBackground::hacker, 0, 55).greenF(), green + 0.2 * (1 - green), 0.01);
    EXPECT_NEAR(panelPixel(PanelBackground::hacker, 259, 55).greenF(), green + 0.2 * (1 - green), 0.01);
    EXPECT_NEAR(panelPixel(PanelBackground::hacker, 1, 55).greenF(), green, smallest);
}

}  // namespace
}  // namespace tidewatch
