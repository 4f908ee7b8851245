#include "packaging/icon_svg.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QImage>
#include <algorithm>
#include <cmath>

namespace tidewatch {
namespace {

constexpr int side = 160;  // pixels; the unit of the drawing

QImage rendered(const QByteArray& svg) {
    return QImage::fromData(svg, "svg").scaled(side, side).convertToFormat(QImage::Format_ARGB32);
}

int difference(const QColor& a, const QColor& b) {
    return std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                     std::abs(a.blue() - b.blue()), std::abs(a.alpha() - b.alpha())});
}

TEST(IconSvg, LooksLikeTheDrawing) {
    const auto picture = rendered(iconSvg(fathom::appIconShapes(), fathom::appIconUnits));
    const auto drawing = fathom::appIcon(side).convertToFormat(QImage::Format_ARGB32);
    ASSERT_EQ(picture.size(), drawing.size());
    int different = 0;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            if (difference(picture.pixelColor(x, y), drawing.pixelColor(x, y)) > 8) ++different;
        }
    }
    EXPECT_LT(different, side) << "of " << side * side << " pixels";
}

TEST(IconSvg, AHoleStaysAHole) {
    QPainterPath ring;
    ring.addRect(0, 0, 10, 10);
    ring.addRect(3, 3, 4, 4);
    const auto picture = rendered(iconSvg({{ring, QColor("#ff0000")}}, 10));
    EXPECT_EQ(picture.pixelColor(side / 10, side / 10), QColor("#ff0000"));
    EXPECT_EQ(picture.pixelColor(side / 2, side / 2).alpha(), 0);
}

TEST(IconSvg, YGrowsUpward) {
    QPainterPath top;
    top.addRect(0, 5, 10, 5);
    const auto picture = rendered(iconSvg({{top, QColor("#0000ff")}}, 10));
    EXPECT_EQ(picture.pixelColor(side / 2, side / 10), QColor("#0000ff"));
    EXPECT_EQ(picture.pixelColor(side / 2, side * 9 / 10).alpha(), 0);
}

}  // namespace
}  // namespace tidewatch
