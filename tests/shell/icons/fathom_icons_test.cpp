#include "shell/icons/fathom_icons.h"

#include <gtest/gtest.h>

namespace tidewatch::fathom {
namespace {

TEST(MenubarIcon, Is17By15PointsAtAnyScale) {
    EXPECT_EQ(menubarIcon(1, Qt::black).size(), QSize(17, 15));
    EXPECT_EQ(menubarIcon(2, Qt::black).size(), QSize(34, 30));
}

TEST(MenubarIcon, NothingOfItIsCutOff) {
    EXPECT_TRUE(
        QRectF(0, 0, menubarIconWidth, menubarIconHeight).contains(menubarIconShape().boundingRect()));
}

TEST(MenubarIcon, HasOneColour) {
    const QColor tint(10, 200, 30);
    const auto icon = menubarIcon(8, tint).convertToFormat(QImage::Format_ARGB32);
    int opaque = 0;
    for (int y = 0; y < icon.height(); ++y) {
        for (int x = 0; x < icon.width(); ++x) {
            const auto pixel = icon.pixelColor(x, y);
            if (pixel.alpha() < 255) continue;
            ++opaque;
            EXPECT_EQ(pixel, tint);
        }
    }
    EXPECT_GT(opaque, 1000);
}

class AppIcon : public testing::TestWithParam<int> {};

TEST_P(AppIcon, IsARoundedSquareWithTheFigureOnIt) {
    const int size = GetParam();
    const auto icon = appIcon(size);
    EXPECT_EQ(icon.size(), QSize(size, size));
    EXPECT_EQ(icon.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(icon.pixelColor(size / 2, 1).alpha(), 255);
    EXPECT_GT(icon.pixelColor(size / 2, size * 34 / 160).lightness(), 150);
}

INSTANTIATE_TEST_SUITE_P(EverySize, AppIcon, testing::Values(16, 22, 24, 32, 48, 64, 128, 256, 512));

}  // namespace
}  // namespace tidewatch::fathom
