#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <vector>

#include "ui/backgrounds/panel_painter.h"
#include "ui/backgrounds/scanlines.h"
#include "ui/backgrounds/soft_blur.h"

namespace tidewatch {
namespace {

QImage canvas(int width, int height, const QColor& color = Qt::transparent) {
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

QImage panel(PanelBackground background, Ground ground) {
    auto image = canvas(220, 124);
    QPainter painter(&image);
    paintPanel(painter, background, {QSizeF(220, 124), 16, 1, ground});
    return image;
}

constexpr PanelBackground stillBackgrounds[] = {PanelBackground::ochre, PanelBackground::editorial,
                                                PanelBackground::minimal, PanelBackground::hacker};

TEST(PanelPainter, ATranslucentPanelLeavesItsCornersOut) {
    for (const auto background : stillBackgrounds) {
        const auto image = panel(background, Ground::translucent);
        EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
        EXPECT_EQ(image.pixelColor(219, 123).alpha(), 0);
        EXPECT_GT(image.pixelColor(110, 62).alpha(), 0);
    }
}

TEST(PanelPainter, AnOpaquePanelFillsItsRectangle) {
    for (const auto background : stillBackgrounds) {
        const auto image = panel(background, Ground::opaque);
        for (const auto corner :
             {QPoint(0, 0), QPoint(219, 0), QPoint(0, 123), QPoint(219, 123), QPoint(110, 62)}) {
            EXPECT_EQ(image.pixelColor(corner).alpha(), 255);
        }
    }
}

TEST(PanelPainter, OnlyTheMinimalPanelLetsTheDesktopThrough) {
    for (const auto background : stillBackgrounds) {
        const int alpha = panel(background, Ground::translucent).pixelColor(110, 62).alpha();
        if (background == PanelBackground::minimal) {
            EXPECT_LT(alpha, 255);
            EXPECT_GT(alpha, 128);
        } else {
            EXPECT_EQ(alpha, 255);
        }
    }
}

TEST(PanelPainter, OchreIsLighterAtItsTopAndPlainFromTheMiddleOn) {
    const auto image = panel(PanelBackground::ochre, Ground::translucent);
    EXPECT_NEAR(image.pixelColor(110, 0).red(), 255 * (0.039 + 0.04 * (1 - 0.039)), 2);
    EXPECT_NEAR(image.pixelColor(110, 63).red(), 255 * 0.039, 1);
    EXPECT_NEAR(image.pixelColor(110, 122).red(), 255 * 0.039, 1);
}

TEST(PanelPainter, EditorialIsPaperDarkestAtItsTop) {
    const auto image = panel(PanelBackground::editorial, Ground::translucent);
    EXPECT_NEAR(image.pixelColor(110, 62).red(), 0xF4, 1);
    EXPECT_NEAR(image.pixelColor(110, 2).red(), 0xF4 * (1 - 0.024), 2);
    EXPECT_LT(image.pixelColor(110, 121).red(), image.pixelColor(110, 62).red());
}

TEST(PanelPainter, HackerHasALineOnEverySecondRow) {
    const auto image = panel(PanelBackground::hacker, Ground::translucent);
    for (int y = 40; y < 60; ++y) {
        SCOPED_TRACE(y);
        const int green = image.pixelColor(110, y).green();
        if (y % 2 == 0) {
            EXPECT_GT(green, 12);
        } else {
            EXPECT_LT(green, 8);
        }
    }
}

TEST(Scanlines, LinesStandAtEveryStepBelowTheTopWhileTheyStayAboveTheBottom) {
    auto image = canvas(4, 10, Qt::black);
    QPainter painter(&image);
    paintScanlines(painter, image.rect(), {Qt::white, 3, 1});
    painter.end();
    std::vector<int> lit;
    for (int y = 0; y < 10; ++y) {
        if (image.pixelColor(1, y).red() > 128) lit.push_back(y);
    }
    EXPECT_EQ(lit, (std::vector<int>{3, 6, 9}));
}

TEST(Scanlines, LinesTooCloseForTheScreenBecomeAnEvenTintOfTheSameBrightness) {
    auto image = canvas(4, 20, Qt::black);
    QPainter painter(&image);
    paintScanlines(painter, image.rect(), {Qt::white, 2, 0.25});
    painter.end();
    for (int y = 0; y < 20; ++y) EXPECT_NEAR(image.pixelColor(1, y).red(), 128, 2);
}

TEST(Scanlines, LinesAreCrispAtSizesBetween) {
    auto image = canvas(4, 40, Qt::black);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    paintScanlines(painter, image.rect(), {Qt::white, 2, 0.75});
    painter.end();
    for (int y = 0; y < 40; ++y) {
        const int level = image.pixelColor(1, y).red();
        EXPECT_TRUE(level == 0 || level == 255) << "row " << y << " is " << level;
    }
}

TEST(SoftBlur, KeepsAnEvenImageAsItIs) {
    auto image = canvas(30, 20, QColor(10, 120, 200, 128));
    const auto before = image;
    blur(image, 6);
    EXPECT_EQ(image, before);
}

TEST(SoftBlur, SpreadsAnEdgeLikeAGaussian) {
    auto image = canvas(120, 3, Qt::black);
    QPainter(&image).fillRect(60, 0, 60, 3, Qt::white);
    blur(image, 8);
    EXPECT_NEAR(image.pixelColor(59, 1).red() + image.pixelColor(60, 1).red(), 255, 3);
    // One deviation from the edge a Gaussian's integral is at 15.9 %, at two it is at 2.3 %.
    EXPECT_NEAR(image.pixelColor(51, 1).red(), 255 * 0.159, 8);
    EXPECT_NEAR(image.pixelColor(43, 1).red(), 255 * 0.023, 5);
    EXPECT_EQ(image.pixelColor(0, 1).red(), 0);
    EXPECT_EQ(image.pixelColor(119, 1).red(), 255);
}

TEST(SoftBlur, ADeviationOfNothingChangesNothing) {
    auto image = canvas(8, 8, Qt::black);
    QPainter(&image).fillRect(4, 0, 4, 8, Qt::white);
    const auto before = image;
    blur(image, 0);
    EXPECT_EQ(image, before);
}

}  // namespace
}  // namespace tidewatch
