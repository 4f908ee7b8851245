#include "wellbeing/games/breakout_field.h"

#include <gtest/gtest.h>

namespace tidewatch::breakout {
namespace {

TEST(BreakoutFieldTest, TheWallHasFiveRowsOfSixBricksListedRowByRow) {
    const auto bricks = wallOfBricks();
    ASSERT_EQ(bricks.size(), 30u);
    auto next = bricks.begin();
    for (int row = 0; row < 5; ++row) {
        for (int column = 0; column < 6; ++column) {
            const auto& brick = *next++;
            EXPECT_EQ(brick.id, row * 6 + column);
            EXPECT_TRUE(brick.alive);
            EXPECT_EQ(brick.color, row) << "every row has one colour";
            EXPECT_EQ(brick.rect, (Rect{3 + 24.5 * column, 10 + 14.0 * row, 21.5, 11}));
        }
    }
    EXPECT_EQ(bricks.back().rect.maxX(), 147);
    EXPECT_EQ(bricks.back().rect.maxY(), 77);
}

TEST(BreakoutFieldTest, TheBallGetsFasterUpToTheFourthLevel) {
    EXPECT_EQ(launchSpeed(1), 2.8);
    EXPECT_EQ(launchSpeed(2), 5.0);
    EXPECT_EQ(launchSpeed(3), 7.8);
    EXPECT_EQ(launchSpeed(4), 11.2);
    EXPECT_EQ(launchSpeed(5), 11.2);
    EXPECT_EQ(launchSpeed(100), 11.2);
}

TEST(BreakoutFieldTest, ThePaddleGetsNarrowerUpToTheFifthLevel) {
    EXPECT_EQ(paddleWidth(1), 40);
    EXPECT_EQ(paddleWidth(2), 34);
    EXPECT_EQ(paddleWidth(3), 28);
    EXPECT_EQ(paddleWidth(4), 22);
    EXPECT_EQ(paddleWidth(5), 20);
    EXPECT_EQ(paddleWidth(6), 20);
    EXPECT_EQ(paddleWidth(100), 20);
}

TEST(BreakoutFieldTest, TheLeftAndTopEdgesOfARectangleAreInsideTheRightAndBottomOnesOutside) {
    constexpr Rect rect{10, 20, 30, 40};
    EXPECT_TRUE(rect.contains({10, 20}));
    EXPECT_TRUE(rect.contains({39.9, 59.9}));
    EXPECT_FALSE(rect.contains({40, 30}));
    EXPECT_FALSE(rect.contains({20, 60}));
    EXPECT_FALSE(rect.contains({9.9, 30}));
    EXPECT_FALSE(rect.contains({20, 19.9}));
    EXPECT_EQ(rect.grown(4), (Rect{6, 16, 38, 48}));
}

}  // namespace
}  // namespace tidewatch::breakout
