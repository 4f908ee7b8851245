#include "ui/backgrounds/liquid_painter.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace tidewatch {
namespace {

constexpr QSize pixels(77, 44);
constexpr QSizeF points(230, 132);

TEST(LiquidAngles, TurnOnceIn18And9And14Seconds) {
    const auto start = liquidAngles(0);
    EXPECT_DOUBLE_EQ(start.spectrum, 0);
    EXPECT_DOUBLE_EQ(start.glints, 0);
    EXPECT_DOUBLE_EQ(start.orbs, 0);

    const auto quarter = liquidAngles(4.5);
    EXPECT_DOUBLE_EQ(quarter.spectrum, 90);
    EXPECT_DOUBLE_EQ(quarter.glints, 180);
    EXPECT_NEAR(quarter.orbs, 4.5 / 14 * 360, 1e-9);

    EXPECT_DOUBLE_EQ(liquidAngles(18).spectrum, 0);
    EXPECT_DOUBLE_EQ(liquidAngles(9).glints, 0);
    EXPECT_DOUBLE_EQ(liquidAngles(14).orbs, 0);
}

TEST(LiquidAngles, AreTheSameAfterTheLeastCommonPeriodOfAllThree) {
    const auto angles = liquidAngles(790'000'003.25);
    const auto later = liquidAngles(790'000'003.25 + 126);
    EXPECT_NEAR(angles.spectrum, later.spectrum, 1e-4);
    EXPECT_NEAR(angles.glints, later.glints, 1e-4);
    EXPECT_NEAR(angles.orbs, later.orbs, 1e-4);
}

double degreesAround(const SpecularOrb& orb, QSizeF box) {
    const double radians = std::atan2(orb.centre.y() - box.height() / 2, orb.centre.x() - box.width() / 2);
    return radians * 180 / std::numbers::pi;
}

double distanceFromCentre(const SpecularOrb& orb, QSizeF box) {
    return std::hypot(orb.centre.x() - box.width() / 2, orb.centre.y() - box.height() / 2);
}

TEST(SpecularOrbs, StandAtTheirAnglesAndRadiiOfTheShorterSide) {
    const QSizeF box(300, 100);
    const auto orbs = specularOrbs(box, 10);
    const double degrees[] = {10, 130, -110, 53};
    const double radii[] = {36, 42, 30, 46};
    for (std::size_t i = 0; i < 4; ++i) {
        SCOPED_TRACE(i);
        EXPECT_NEAR(degreesAround(orbs[i], box), degrees[i], 1e-6);
        EXPECT_NEAR(distanceFromCentre(orbs[i], box), radii[i], 1e-6);
        EXPECT_DOUBLE_EQ(orbs[i].diameter, 30);
    }
}

QImage liquidImage(double seconds, double intensity = 1, Ground ground = Ground::translucent) {
    return LiquidPainter({pixels, points, intensity, ground}).paint(liquidAngles(seconds));
}

TEST(LiquidPainter, MovesWithTime) {
    EXPECT_NE(liquidImage(0), liquidImage(1));
    EXPECT_EQ(liquidImage(1), liquidImage(1 + 126));
}

TEST(LiquidPainter, IsTranslucentAndWeakerWithLessIntensity) {
    const auto full = liquidImage(3);
    const auto weak = liquidImage(3, 0.45);
    double fullAlpha = 0;
    double weakAlpha = 0;
    for (int y = 0; y < pixels.height(); ++y) {
        for (int x = 0; x < pixels.width(); ++x) {
            fullAlpha += full.pixelColor(x, y).alphaF();
            weakAlpha += weak.pixelColor(x, y).alphaF();
        }
    }
    const double count = pixels.width() * pixels.height();
    EXPECT_GT(fullAlpha / count, 0.7);
    EXPECT_LT(fullAlpha / count, 0.95);
    EXPECT_GT(weakAlpha / count, 0.4);
    EXPECT_LT(weakAlpha / count, 0.65);
}

TEST(LiquidPainter, RunsThroughTheWholeColourWheel) {
    const auto image = liquidImage(0);
    std::array<int, 6> sextants{};
    for (int y = 0; y < pixels.height(); ++y) {
        for (int x = 0; x < pixels.width(); ++x) {
            const int hue = image.pixelColor(x, y).hue();
            if (hue >= 0) ++sextants[static_cast<std::size_t>(hue / 60)];
        }
    }
    for (const int count : sextants) EXPECT_GT(count, 20);
}

QImage painted(Ground ground) {
    QImage image(230, 132, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paintLiquid(painter, liquidImage(0, 1, ground), {points, 24, 1, ground});
    return image;
}

TEST(PaintLiquid, ATranslucentPanelHasRoundedCornersAndLetsTheDesktopThrough) {
    const auto image = painted(Ground::translucent);
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(image.pixelColor(229, 131).alpha(), 0);
    EXPECT_GT(image.pixelColor(115, 100).alpha(), 128);
    EXPECT_LT(image.pixelColor(115, 100).alpha(), 255);
}

TEST(PaintLiquid, AnOpaquePanelIsOpaqueEverywhere) {
    const auto image = painted(Ground::opaque);
    for (const auto point : {QPoint(0, 0), QPoint(229, 131), QPoint(115, 100)}) {
        EXPECT_EQ(image.pixelColor(point).alpha(), 255);
    }
}

}  // namespace
}  // namespace tidewatch
