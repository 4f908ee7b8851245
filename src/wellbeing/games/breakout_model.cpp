#include "wellbeing/games/breakout_model.h"

#include <algorithm>

namespace tidewatch {
namespace {

using namespace breakout;

constexpr int livesOfAGame = 3;
constexpr int pointsPerBrick = 10;
constexpr int pointsPerLevel = 50;

constexpr double paddleStart = fieldWidth / 2;
constexpr double paddleMin = 20;
constexpr double paddleMax = fieldWidth - paddleMin;
constexpr double paddleStep = 14;

constexpr double ballBeforeTheFirstGame = 222;
constexpr double ballOnThePaddle = 231;
constexpr double sidewaysAtLaunch = 0.4;

}  // namespace

BreakoutModel::BreakoutModel(const Sources& sources)
    : GameModel(sources, "breakoutHighScore"),
      lives_(livesOfAGame),
      paddleX_(paddleStart),
      ball_{{paddleStart, ballBeforeTheFirstGame}, {}} {}

void BreakoutModel::setUp() {
    lives_ = livesOfAGame;
    buildBricks();
    resetBall();
}

void BreakoutModel::buildBricks() {
    bricks_ = wallOfBricks();
}

void BreakoutModel::resetBall() {
    launched_ = false;
    const bool leftward = draw(2) == 0;
    ball_ = {{paddleX_, ballOnThePaddle},
             {leftward ? -sidewaysAtLaunch : sidewaysAtLaunch, -launchSpeed(level())}};
}

void BreakoutModel::launch() {
    if (!isPlaying()) return;
    launched_ = true;
    changed.emit();
}

void BreakoutModel::moveLeft() {
    movePaddle(-paddleStep);
}

void BreakoutModel::moveRight() {
    movePaddle(+paddleStep);
}

void BreakoutModel::movePaddle(double by) {
    setPaddle(paddleX_ + by);
}

void BreakoutModel::setPaddle(double to) {
    paddleX_ = std::clamp(to, paddleMin, paddleMax);
    if (!launched_) ball_.center.x = paddleX_;
    changed.emit();
}

std::chrono::nanoseconds BreakoutModel::stepInterval() const {
    return std::chrono::nanoseconds(std::chrono::seconds(1)) / 60;
}

void BreakoutModel::step() {
    if (!launched_) return;
    if (moveBall(ball_, bricks_, paddleX_, level()) == Hit::brick) earn(pointsPerBrick);
    if (isLost(ball_)) loseBall();
    if (wallIsCleared()) nextLevel();
}

void BreakoutModel::loseBall() {
    --lives_;
    if (lives_ < 1) {
        endGame();
    } else {
        resetBall();
    }
}

bool BreakoutModel::wallIsCleared() const {
    return std::ranges::none_of(bricks_, &Brick::alive);
}

void BreakoutModel::nextLevel() {
    setLevel(level() + 1);
    earn(pointsPerLevel);
    buildBricks();
    resetBall();
}

KeyPress BreakoutModel::press(GameKey key) {
    switch (key) {
        case GameKey::space:
            launch();
            return KeyPress::consumed;
        case GameKey::left:
            moveLeft();
            return KeyPress::consumed;
        case GameKey::right:
            moveRight();
            return KeyPress::consumed;
        case GameKey::up:
        case GameKey::down:
        case GameKey::p:
            break;
    }
    return KeyPress::passedOn;
}

}  // namespace tidewatch
