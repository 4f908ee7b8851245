// The painted icons compared with their geometry, by distances between points: an independent implementation
// that shares neither paths nor strokes with the painter.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>
#include <vector>

#include "shell/icons/fathom_icons.h"

namespace tidewatch::fathom {
namespace {

/// In the units of a drawing, from its lower left corner, y growing upward.
struct Point {
    double x;
    double y;
};

double distance(Point one, Point other) {
    return std::hypot(one.x - other.x, one.y - other.y);
}

/// Below 0 inside, above 0 outside.
using Distance = std::function<double(Point)>;

Distance roundedRectangle(Point corner, double width, double height, double radius) {
    return [=](Point at) {
        const double x = std::abs(at.x - corner.x - width / 2) - (width / 2 - radius);
        const double y = std::abs(at.y - corner.y - height / 2) - (height / 2 - radius);
        return std::hypot(std::max(x, 0.0), std::max(y, 0.0)) + std::min(std::max(x, y), 0.0) - radius;
    };
}

Distance outline(Distance area, double line) {
    return [=](Point at) { return std::abs(area(at)) - line / 2; };
}

Distance disc(Point centre, double diameter) {
    return [=](Point at) { return distance(at, centre) - diameter / 2; };
}

Distance line(Point from, Point to, double width) {
    return [=](Point at) {
        const double length = distance(from, to);
        const double along = ((at.x - from.x) * (to.x - from.x) + (at.y - from.y) * (to.y - from.y)) / length;
        const double share = std::clamp(along / length, 0.0, 1.0);
        return distance(at, {from.x + share * (to.x - from.x), from.y + share * (to.y - from.y)}) - width / 2;
    };
}

/// Turned by `radians`, counterclockwise, about `pivot`.
Distance turned(Distance area, double radians, Point pivot) {
    return [=](Point at) {
        const double x = at.x - pivot.x;
        const double y = at.y - pivot.y;
        return area({pivot.x + x * std::cos(-radians) - y * std::sin(-radians),
                     pivot.y + x * std::sin(-radians) + y * std::cos(-radians)});
    };
}

Distance any(std::vector<Distance> areas) {
    return [=](Point at) {
        double nearest = 1e9;
        for (const auto& area : areas) nearest = std::min(nearest, area(at));
        return nearest;
    };
}

/// The number of pixels that differ from the drawing, not counting those on its edges.
int wrongPixels(const QImage& image, double unitsHigh, const Distance& area,
                const std::function<bool(const QColor&)>& isInk) {
    const double unit = unitsHigh / image.height();
    int wrong = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const double away = area({(x + 0.5) * unit, unitsHigh - (y + 0.5) * unit});
            if (std::abs(away) > unit && isInk(image.pixelColor(x, y)) != (away < 0)) ++wrong;
        }
    }
    return wrong;
}

bool isOpaque(const QColor& colour) {
    return colour.alpha() > 127;
}

TEST(MenubarIconGeometry, IsTheSpecifiedFigure) {
    constexpr double w = 17;
    constexpr double h = 15;
    const Point corner{0.16 * w, 0.10 * h};
    const double width = 0.68 * w;
    const double height = 0.52 * h;
    const Point centre{corner.x + width / 2, corner.y + height / 2};
    const Point top{centre.x, corner.y + height};
    const auto figure = any({
        outline(roundedRectangle(corner, width, height, 1.6), 1.2),
        disc(centre, 2.2),
        line(centre, {centre.x, centre.y + 0.31 * height}, 1.3),
        line(centre, {centre.x + 0.25 * height, centre.y - 0.15 * height}, 1.3),
        turned(roundedRectangle({0.13 * w, top.y + 0.08 * h}, 0.74 * w, 0.20 * h, 1.0), -0.31, top),
    });
    EXPECT_EQ(wrongPixels(menubarIcon(20, Qt::black), h, figure, isOpaque), 0);
}

TEST(AppIconGeometry, IsARoundedSquareOfThatCorner) {
    EXPECT_EQ(wrongPixels(appIcon(640), 160, roundedRectangle({0, 0}, 160, 160, 36), isOpaque), 0);
}

TEST(AppIconGeometry, BodyAndBarHaveTheSpecifiedPositions) {
    const auto fromTop = [](double y) { return 160 - y; };
    const Point corner{34, fromTop(134)};
    const Point centre{34 + 92 / 2.0, corner.y + 58 / 2.0};
    const auto body = outline(roundedRectangle(corner, 92, 58, 7), 8);
    const auto bar =
        turned(roundedRectangle({30, fromTop(58)}, 100, 26, 5), -std::numbers::pi / 10, {80, fromTop(58)});
    const auto clock = any({disc(centre, 14), line(centre, {centre.x, centre.y + 0.31 * 58}, 8),
                            line(centre, {centre.x + 0.25 * 58, centre.y - 0.15 * 58}, 8)});
    const auto icon = appIcon(640);
    const auto isPaper = [](const QColor& colour) { return colour.alpha() == 255 && colour.red() > 200; };
    const auto isGreen = [](const QColor& colour) { return colour.green() > colour.red() + 40; };
    EXPECT_EQ(wrongPixels(icon, 160, any({body, bar}), isPaper), 0);
    EXPECT_EQ(wrongPixels(icon, 160, clock, isGreen), 0);
}

TEST(AppIconGeometry, TheGroundIsLighterTowardsTheUpperLeftCorner) {
    const auto icon = appIcon(160);
    const auto ground = [&](int x, int y) { return icon.pixelColor(x, y).lightness(); };
    EXPECT_GT(ground(14, 14), ground(10, 80));
    EXPECT_GT(ground(10, 80), ground(146, 146));
    EXPECT_NEAR(ground(14, 146), ground(146, 14), 1);
}

}  // namespace
}  // namespace tidewatch::fathom
