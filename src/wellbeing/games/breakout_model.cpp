#include "wellbeing/games/breakout_model.h"

#include <algorithm>
#include <chrono>

#include "wellbeing/games/uniform_draw.h"

namespace tidewatch {
namespace {

using namespace breakout;

constexpr auto stepInterval = std::chrono::nanoseconds(std::chrono::seconds(1)) / 60;

constexpr int livesOfAGame = 3;
constexpr std::int64_t pointsPerBrick = 10;
constexpr std::int64_t pointsPerLevel = 50;

constexpr double paddleStart = fieldWidth / 2;
constexpr double paddleMin = 20;
constexpr double paddleMax = fieldWidth - paddleMin;
constexpr double paddleStep = 14;

constexpr double ballBeforeTheFirstGame = 222;
constexpr double ballOnThePaddle = 231;
constexpr double sidewaysAtLaunch = 0.4;

}  // namespace

BreakoutModel::BreakoutModel(const Sources& sources)
    : mainLoop_(sources.mainLoop),
      randomness_(sources.randomness),
      keys_(sources.keys),
      lives_(livesOfAGame),
      best_(sources.preferences, "breakoutHighScore"),
      paddleX_(paddleStart),
      ball_{{paddleStart, ballBeforeTheFirstGame}, {}} {}

void BreakoutModel::play() {
    switch (state_) {
        case State::playing:
            return;
        case State::paused:
            state_ = State::playing;
            break;
        case State::idle:
        case State::over:
        case State::won:
            newGame();
            break;
    }
    if (!keyObservation_) keyObservation_ = keys_.observe([this](GameKey key) { return press(key); });
    startTimer();
    changed.emit();
}

void BreakoutModel::pause() {
    if (state_ != State::playing) return;
    state_ = State::paused;
    timer_.reset();
    changed.emit();
}

void BreakoutModel::togglePlayPause() {
    if (state_ == State::playing) {
        pause();
    } else {
        play();
    }
}

void BreakoutModel::reset() {
    newGame();
    state_ = State::idle;
    timer_.reset();
    changed.emit();
}

void BreakoutModel::stop() {
    timer_.reset();
    keyObservation_.reset();
    if (state_ != State::playing) return;
    state_ = State::paused;
    changed.emit();
}

void BreakoutModel::launch() {
    if (state_ != State::playing) return;
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

void BreakoutModel::newGame() {
    score_ = 0;
    lives_ = livesOfAGame;
    level_ = 1;
    buildBricks();
    resetBall();
    state_ = State::playing;
}

void BreakoutModel::buildBricks() {
    bricks_ = wallOfBricks();
}

void BreakoutModel::resetBall() {
    launched_ = false;
    const bool leftward = uniformBelow(2, randomness_) == 0;
    ball_ = {{paddleX_, ballOnThePaddle},
             {leftward ? -sidewaysAtLaunch : sidewaysAtLaunch, -launchSpeed(level_)}};
}

void BreakoutModel::startTimer() {
    timer_.reset();
    timer_ = mainLoop_.repeat(stepInterval, platform::TimerMode::common, [this] { step(); });
}

void BreakoutModel::step() {
    if (state_ != State::playing) return;
    if (launched_) {
        if (moveBall(ball_, bricks_, paddleX_, level_) == Hit::brick) score_ += pointsPerBrick;
        if (isLost(ball_)) loseBall();
        if (wallIsCleared()) nextLevel();
    }
    changed.emit();
}

void BreakoutModel::loseBall() {
    --lives_;
    if (lives_ < 1) {
        endGame();
    } else {
        resetBall();
    }
}

void BreakoutModel::endGame() {
    state_ = State::over;
    timer_.reset();
    keyObservation_.reset();
    best_.enter(score_);
}

bool BreakoutModel::wallIsCleared() const {
    return std::ranges::none_of(bricks_, &Brick::alive);
}

void BreakoutModel::nextLevel() {
    ++level_;
    score_ += pointsPerLevel;
    buildBricks();
    resetBall();
}

KeyPress BreakoutModel::press(GameKey key) {
    if (state_ != State::playing) return KeyPress::passedOn;
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
