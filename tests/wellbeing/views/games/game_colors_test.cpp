#include "wellbeing/views/games/game_colors.h"

#include <gtest/gtest.h>

#include <cmath>

#include "shell/themes/theme_registry.h"

namespace tidewatch {
namespace {

using Channels = std::array<double, 3>;
using Matrix = std::array<Channels, 3>;

/// How somebody sees, in linear sRGB.
struct Vision {
    const char* name;
    Matrix matrix;
};

constexpr std::array visions{
    Vision{"all cones", {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}},
    Vision{"protanopia",
           {{{0.152286, 1.052583, -0.204868},
             {0.114503, 0.786281, 0.099216},
             {-0.003882, -0.048116, 1.051998}}}},
    Vision{
        "deuteranopia",
        {{{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}}},
};

/// In units of CIELAB, of which a difference of two or three can just be seen.
constexpr double minDifference = 12;

double linear(double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

Channels product(const Matrix& matrix, const Channels& factor) {
    Channels result{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column)
            result[row] += matrix[row][column] * factor[column];
    }
    return result;
}

/// Lightness, green to red, blue to yellow.
Channels lab(const Color& color, const Vision& vision) {
    auto seen = product(vision.matrix, {linear(color.red), linear(color.green), linear(color.blue)});
    for (auto& part : seen) part = std::clamp(part, 0.0, 1.0);
    constexpr Matrix toXyz{{{0.4124, 0.3576, 0.1805}, {0.2126, 0.7152, 0.0722}, {0.0193, 0.1192, 0.9505}}};
    constexpr Channels white{0.9505, 1, 1.0890};
    const auto xyz = product(toXyz, seen);
    const auto root = [&](std::size_t part) {
        const double share = xyz[part] / white[part];
        return share > 0.008856 ? std::cbrt(share) : 7.787 * share + 16.0 / 116;
    };
    return {116 * root(1) - 16, 500 * (root(0) - root(1)), 200 * (root(1) - root(2))};
}

double difference(const Color& one, const Color& other, const Vision& vision) {
    const auto first = lab(one, vision);
    const auto second = lab(other, vision);
    return std::hypot(first[0] - second[0], first[1] - second[1], first[2] - second[2]);
}

TEST(GameColors, EachRowHasAColourOfItsOwn) {
    ASSERT_EQ(brickColors.size(), 5u);
    EXPECT_EQ(brickColors[0], (Color{0.82, 0.34, 0.34, 1}));
    EXPECT_EQ(brickColors[1], (Color{0.88, 0.54, 0.29, 1}));
    EXPECT_EQ(brickColors[2], (Color{0.91, 0.77, 0.35, 1}));
    EXPECT_EQ(brickColors[3], (Color{0.48, 0.85, 0.56, 1}));
    EXPECT_EQ(brickColors[4], (Color{0.42, 0.62, 0.83, 1}));
}

TEST(GameColors, TheEmptyCellHasNoColourAndEachPieceOneOfItsOwn) {
    ASSERT_EQ(pieceColors.size(), 8u);
    EXPECT_EQ(pieceColors[0].alpha, 0);
    EXPECT_EQ(pieceColors[1], (Color{0.36, 0.78, 0.84, 1}));
    EXPECT_EQ(pieceColors[2], (Color{0.42, 0.62, 0.83, 1}));
    EXPECT_EQ(pieceColors[3], (Color{0.88, 0.54, 0.29, 1}));
    EXPECT_EQ(pieceColors[4], (Color{0.91, 0.77, 0.35, 1}));
    EXPECT_EQ(pieceColors[5], (Color{0.48, 0.85, 0.56, 1}));
    EXPECT_EQ(pieceColors[6], (Color{0.61, 0.48, 0.85, 1}));
    EXPECT_EQ(pieceColors[7], (Color{0.82, 0.34, 0.34, 1}));
}

TEST(GameColors, PiecesDifferByColourOrMarkInEveryThemeAlsoForThoseWhoSeeRedAndGreenAlike) {
    const ThemeRegistry themes;
    for (const auto& theme : themes.themes()) {
        const auto& pieces = theme.dashboard.gamePieces;
        ASSERT_EQ(pieces.size(), pieceMarks.size());
        for (std::size_t one = 0; one < pieces.size(); ++one) {
            for (std::size_t other = one + 1; other < pieces.size(); ++other) {
                if (pieceMarks[one] != pieceMarks[other]) continue;
                for (const auto& vision : visions) {
                    EXPECT_GE(difference(pieces[one], pieces[other], vision), minDifference)
                        << theme.id << ", " << vision.name << ", pieces " << one + 1 << " and " << other + 1;
                }
            }
        }
    }
}

TEST(GameColors, TheSimulationOfColourBlindnessMakesRedAndGreenAlike) {
    constexpr Color red{0.7, 0.4, 0.3};
    constexpr Color green{0.5, 0.53, 0.3};
    EXPECT_GT(difference(red, green, visions[0]), 30);
    EXPECT_LT(difference(red, green, visions[2]), 12);
}

}  // namespace
}  // namespace tidewatch
