#include "wellbeing/games/breakout_ball.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tidewatch::breakout {
namespace {

// Bounds of the ball's centre.
constexpr double leftBound = ballRadius;
constexpr double rightBound = fieldWidth - ballRadius;
constexpr double topBound = ballRadius;
constexpr double lostBelow = fieldHeight + ballRadius;

constexpr double paddleBottom = paddleTop + paddleHeight;
constexpr double bouncingY = paddleTop - ballRadius;
constexpr double widestAngle = std::numbers::pi / 3;  // from straight up
constexpr double slowestBounce = 2.8;

}  // namespace

void bounceOffWalls(Ball& ball) {
    auto& [center, velocity] = ball;
    if (center.x < leftBound) {
        center.x = leftBound;
        velocity.dx = std::abs(velocity.dx);
    }
    if (center.x > rightBound) {
        center.x = rightBound;
        velocity.dx = -std::abs(velocity.dx);
    }
    if (center.y < topBound) {
        center.y = topBound;
        velocity.dy = std::abs(velocity.dy);
    }
}

void bounceOffPaddle(Ball& ball, double paddleX, int level) {
    auto& [center, velocity] = ball;
    const double half = paddleWidth(level) * 0.5;
    const bool hit = velocity.dy > 0 && center.y + ballRadius >= paddleTop && center.y < paddleBottom &&
                     center.x >= paddleX - half - ballRadius && center.x <= paddleX + half + ballRadius;
    if (!hit) return;
    const double angle = std::clamp((center.x - paddleX) / half, -1.0, 1.0) * widestAngle;
    const double length = std::sqrt(velocity.dx * velocity.dx + velocity.dy * velocity.dy);
    const double speed = std::max(length, slowestBounce);
    velocity = {speed * std::sin(angle), -std::abs(speed * std::cos(angle))};
    center.y = bouncingY;
}

Hit hitBrick(Ball& ball, std::vector<Brick>& bricks, double previousY) {
    const auto hit = std::ranges::find_if(bricks, [&](const Brick& brick) {
        return brick.alive && brick.rect.grown(ballRadius).contains(ball.center);
    });
    if (hit == bricks.end()) return Hit::nothing;
    hit->alive = false;
    const bool fromAboveOrBelow = previousY <= hit->rect.y || previousY >= hit->rect.maxY();
    auto& reflected = fromAboveOrBelow ? ball.velocity.dy : ball.velocity.dx;
    reflected = -reflected;
    return Hit::brick;
}

Hit moveBall(Ball& ball, std::vector<Brick>& bricks, double paddleX, int level) {
    const double previousY = ball.center.y;
    ball.center.x += ball.velocity.dx;
    ball.center.y += ball.velocity.dy;
    bounceOffWalls(ball);
    bounceOffPaddle(ball, paddleX, level);
    return hitBrick(ball, bricks, previousY);
}

bool isLost(const Ball& ball) {
    return ball.center.y > lostBelow;
}

}  // namespace tidewatch::breakout
