#include "wellbeing/games/breakout_ball.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace tidewatch::breakout {
namespace {

constexpr double paddleX = 75;
constexpr double sixtyDegrees = std::numbers::pi / 3;

/// One brick far from walls and paddle.
std::vector<Brick> oneBrick() {
    return {{0, true, {60, 100, 20, 10}, 0}};
}

Ball bouncedOffPaddle(Ball ball, int level = 1) {
    bounceOffPaddle(ball, paddleX, level);
    return ball;
}

struct Reflection {
    const char* from;
    Point before;
    Vector velocity;
    Vector after;
};

TEST(BreakoutBallTest, TheSideWallsSendTheBallBack) {
    Ball ball{{3.5, 100}, {-2, 1}};
    bounceOffWalls(ball);
    EXPECT_EQ(ball, (Ball{{4, 100}, {2, 1}}));
    ball = {{146.5, 100}, {2, 1}};
    bounceOffWalls(ball);
    EXPECT_EQ(ball, (Ball{{146, 100}, {-2, 1}}));
}

TEST(BreakoutBallTest, ABallOnTheBoundIsNotSentBack) {
    for (const auto& at : {Point{4, 100}, Point{146, 100}, Point{75, 4}}) {
        Ball ball{at, {-2, -1}};
        bounceOffWalls(ball);
        EXPECT_EQ(ball, (Ball{at, {-2, -1}}));
    }
}

TEST(BreakoutBallTest, TheWallsSetADirectionTheyDoNotTurnItAround) {
    // The ball may already be on its way back.
    Ball ball{{3, 100}, {2, 1}};
    bounceOffWalls(ball);
    EXPECT_EQ(ball.velocity, (Vector{2, 1}));
    ball = {{147, 100}, {-2, 1}};
    bounceOffWalls(ball);
    EXPECT_EQ(ball.velocity, (Vector{-2, 1}));
    ball = {{75, 3}, {1, 2}};
    bounceOffWalls(ball);
    EXPECT_EQ(ball.velocity, (Vector{1, 2}));
}

TEST(BreakoutBallTest, TheCeilingSendsTheBallDown) {
    Ball ball{{75, 2}, {1, -2}};
    bounceOffWalls(ball);
    EXPECT_EQ(ball, (Ball{{75, 4}, {1, 2}}));
}

TEST(BreakoutBallTest, InACornerBothWallsAct) {
    Ball ball{{2, 1}, {-3, -4}};
    bounceOffWalls(ball);
    EXPECT_EQ(ball, (Ball{{4, 4}, {3, 4}}));
}

TEST(BreakoutBallTest, ThereIsNoFloor) {
    Ball ball{{75, 260}, {1, 2}};
    bounceOffWalls(ball);
    EXPECT_EQ(ball, (Ball{{75, 260}, {1, 2}}));
}

TEST(BreakoutBallTest, AHitExactlyInTheMiddleLeavesStraightUp) {
    const auto ball = bouncedOffPaddle({{paddleX, 230}, {1.5, 2}});
    EXPECT_EQ(ball.velocity.dx, 0);
    EXPECT_DOUBLE_EQ(ball.velocity.dy, -2.8) << "as slow as 2.5, which is too slow";
    EXPECT_EQ(ball.center, (Point{paddleX, 228.5}));
}

TEST(BreakoutBallTest, TheSpeedIsKeptThroughABounce) {
    for (const double aside : {-20.0, -7.0, 0.0, 3.0, 20.0}) {
        const auto ball = bouncedOffPaddle({{paddleX + aside, 230}, {3, 4}});
        EXPECT_NEAR(std::hypot(ball.velocity.dx, ball.velocity.dy), 5, 1e-12);
        EXPECT_LT(ball.velocity.dy, 0);
    }
}

TEST(BreakoutBallTest, TheAngleGrowsEvenlyOverThePaddlesWidthAtEachLevel) {
    int level = 0;
    for (const double half : {20.0, 17.0, 14.0, 11.0, 10.0, 10.0}) {
        ++level;
        for (int tenth = -10; tenth <= 10; ++tenth) {
            const auto ball = bouncedOffPaddle({{paddleX + half * tenth / 10, 230}, {0, 5}}, level);
            const double angle = std::atan2(ball.velocity.dx, -ball.velocity.dy);
            EXPECT_NEAR(angle, sixtyDegrees * tenth / 10, 1e-12) << "level " << level << ", " << tenth;
        }
    }
}

TEST(BreakoutBallTest, ABallThatMeetsThePaddleAtItsEndOrBeyondLeavesAtExactly60Degrees) {
    for (const double beyond : {20.0, 22.0, 24.0}) {
        const auto right = bouncedOffPaddle({{paddleX + beyond, 230}, {0, 5}});
        EXPECT_EQ(right.velocity, (Vector{5 * std::sin(sixtyDegrees), -5 * std::cos(sixtyDegrees)}));
        const auto left = bouncedOffPaddle({{paddleX - beyond, 230}, {0, 5}});
        EXPECT_EQ(left.velocity, (Vector{-5 * std::sin(sixtyDegrees), -5 * std::cos(sixtyDegrees)}));
    }
}

TEST(BreakoutBallTest, ThePaddleReachesAsFarAsTheLevelsWidthAndAMarginOfFour) {
    int level = 0;
    for (const double reach : {24.0, 21.0, 18.0, 15.0, 14.0, 14.0}) {
        ++level;
        for (const double side : {-1.0, 1.0}) {
            EXPECT_LT(bouncedOffPaddle({{paddleX + side * reach, 230}, {0, 5}}, level).velocity.dy, 0);
            const Ball passing{{paddleX + side * (reach + 0.01), 230}, {0, 5}};
            EXPECT_EQ(bouncedOffPaddle(passing, level), passing);
        }
    }
}

TEST(BreakoutBallTest, ThePaddleIsHitBetweenItsTopAndItsBottom) {
    EXPECT_LT(bouncedOffPaddle({{paddleX, 228.5}, {0, 5}}).velocity.dy, 0);
    EXPECT_GT(bouncedOffPaddle({{paddleX, 228.4}, {0, 5}}).velocity.dy, 0);
    EXPECT_LT(bouncedOffPaddle({{paddleX, 239.4}, {0, 5}}).velocity.dy, 0);
    EXPECT_GT(bouncedOffPaddle({{paddleX, 239.5}, {0, 5}}).velocity.dy, 0);
}

TEST(BreakoutBallTest, ARisingBallPassesThePaddle) {
    const Ball rising{{paddleX, 235}, {1, -2}};
    EXPECT_EQ(bouncedOffPaddle(rising), rising);
    const Ball level{{paddleX, 235}, {1, 0}};
    EXPECT_EQ(bouncedOffPaddle(level), level);
}

TEST(BreakoutBallTest, BricksReflectOnEachSideAndCorner) {
    // The brick is 60 to 80 across and 100 to 110 down.
    constexpr Reflection reflections[]{
        {"above", {70, 94}, {1, 3}, {1, -3}},
        {"below", {70, 116}, {1, -3}, {1, 3}},
        {"the left", {54, 105}, {3, 1}, {-3, 1}},
        {"the right", {85, 105}, {-3, 1}, {3, 1}},
        {"the top left corner", {55, 95}, {2, 2}, {2, -2}},
        {"the top right corner", {85, 95}, {-2, 2}, {-2, -2}},
        {"the bottom left corner", {55, 115}, {2, -2}, {2, 2}},
        {"the bottom right corner", {85, 115}, {-2, -2}, {-2, 2}},
        {"a top left corner, at the height of its edge", {55, 100}, {2, 2}, {2, -2}},
        {"a top left corner, below its edge", {55, 100.1}, {2, 2}, {-2, 2}},
        {"a bottom left corner, at the height of its edge", {55, 110}, {2, -2}, {2, 2}},
        {"a bottom left corner, above its edge", {55, 109.9}, {2, -2}, {-2, -2}},
    };
    for (const auto& [from, before, velocity, after] : reflections) {
        auto bricks = oneBrick();
        Ball ball{before, velocity};
        EXPECT_EQ(moveBall(ball, bricks, paddleX, 1), Hit::brick) << from;
        EXPECT_FALSE(bricks[0].alive) << from;
        EXPECT_EQ(ball.velocity, after) << from;
        EXPECT_EQ(ball.center, (Point{before.x + velocity.dx, before.y + velocity.dy})) << "not pushed out";
    }
}

TEST(BreakoutBallTest, ABrickIsHitFromItsEdgesGrownByFourLeftAndTopInclusive) {
    const auto hitAt = [](Point at) {
        auto bricks = oneBrick();
        Ball ball{at, {0, 1}};
        return hitBrick(ball, bricks, 90) == Hit::brick;
    };
    EXPECT_TRUE(hitAt({56, 105}));
    EXPECT_FALSE(hitAt({55.9, 105}));
    EXPECT_TRUE(hitAt({83.9, 105}));
    EXPECT_FALSE(hitAt({84, 105}));
    EXPECT_TRUE(hitAt({70, 96}));
    EXPECT_FALSE(hitAt({70, 95.9}));
    EXPECT_TRUE(hitAt({70, 113.9}));
    EXPECT_FALSE(hitAt({70, 114}));
}

TEST(BreakoutBallTest, OnlyTheFirstOfTheTouchedBricksFalls) {
    std::vector<Brick> bricks{{0, true, {60, 100, 20, 10}, 0}, {1, true, {82, 100, 20, 10}, 0}};
    Ball ball{{81, 118}, {0, -5}};
    EXPECT_EQ(moveBall(ball, bricks, paddleX, 1), Hit::brick);
    EXPECT_FALSE(bricks[0].alive);
    EXPECT_TRUE(bricks[1].alive);
    EXPECT_EQ(ball.velocity, (Vector{0, 5})) << "reflected once";
}

TEST(BreakoutBallTest, ADeadBrickIsNotHit) {
    auto bricks = oneBrick();
    bricks[0].alive = false;
    Ball ball{{70, 118}, {0, -5}};
    EXPECT_EQ(moveBall(ball, bricks, paddleX, 1), Hit::nothing);
    EXPECT_EQ(ball, (Ball{{70, 113}, {0, -5}}));
}

TEST(BreakoutBallTest, TheStepIsNotSubdivided) {
    constexpr double fastest = 11.2;
    // Over a flat brick,
    std::vector<Brick> bricks{{0, true, {60, 100, 20, 2}, 0}};
    Ball ball{{70, 107}, {0, -fastest}};
    EXPECT_EQ(moveBall(ball, bricks, paddleX, 4), Hit::nothing);
    EXPECT_EQ(ball, (Ball{{70, 107 - fastest}, {0, -fastest}}));
    // and over the paddle.
    ball = {{paddleX, 228.4}, {0, fastest}};
    EXPECT_EQ(moveBall(ball, bricks, paddleX, 4), Hit::nothing);
    EXPECT_EQ(ball, (Ball{{paddleX, 228.4 + fastest}, {0, fastest}}));
}

TEST(BreakoutBallTest, WallsComeBeforePaddleAndBricks) {
    // The ball leaves through the left wall; where the wall puts it, it touches the paddle's end.
    std::vector<Brick> none;
    Ball ball{{5, 229}, {-3, 2}};
    moveBall(ball, none, 20 + 8, 1);
    EXPECT_EQ(ball.center, (Point{4, 228.5}));
    EXPECT_NEAR(ball.velocity.dx, -std::hypot(3, 2) * std::sin(sixtyDegrees), 1e-12);
    // Where the wall puts it, it touches a brick, which turns it back to the wall.
    std::vector<Brick> atTheWall{{0, true, {6, 100, 20, 10}, 0}};
    ball = {{4.5, 105}, {-3, 1}};
    EXPECT_EQ(moveBall(ball, atTheWall, paddleX, 1), Hit::brick);
    EXPECT_EQ(ball, (Ball{{4, 106}, {-3, 1}}));
}

TEST(BreakoutBallTest, ThePaddleComesBeforeTheBricks) {
    // A brick just above the paddle: touched only where the paddle puts the ball.
    std::vector<Brick> bricks{{0, true, {60, 210, 30, 14.6}, 0}};
    Ball ball{{paddleX, 227}, {0, 4}};
    EXPECT_EQ(moveBall(ball, bricks, paddleX, 1), Hit::brick);
    EXPECT_EQ(ball.center, (Point{paddleX, 228.5}));
    EXPECT_EQ(ball.velocity.dy, 4) << "sent up by the paddle, then down by the brick";
}

TEST(BreakoutBallTest, TheCeilingComesBeforeThePaddleAndTheBricks) {
    std::vector<Brick> bricks{{0, true, {60, 7, 30, 10}, 0}};
    Ball ball{{paddleX, 5}, {0, -3}};
    EXPECT_EQ(moveBall(ball, bricks, paddleX, 1), Hit::brick);
    EXPECT_EQ(ball, (Ball{{paddleX, 4}, {0, -3}})) << "sent down by the ceiling, then up by the brick";
}

TEST(BreakoutBallTest, TheBallIsLostOnlyBelow256) {
    EXPECT_FALSE(isLost({{75, 256}, {0, 1}}));
    EXPECT_TRUE(isLost({{75, 256.001}, {0, 1}}));
}

}  // namespace
}  // namespace tidewatch::breakout
