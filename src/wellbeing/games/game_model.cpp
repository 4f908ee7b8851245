#include "wellbeing/games/game_model.h"

#include <utility>

#include "wellbeing/games/uniform_draw.h"

namespace tidewatch {

GameModel::GameModel(const Sources& sources, std::string highScoreKey)
    : mainLoop_(sources.mainLoop),
      randomness_(sources.randomness),
      keys_(sources.keys),
      best_(sources.preferences, std::move(highScoreKey)) {}

void GameModel::play() {
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
    if (!keyObservation_) {
        keyObservation_ =
            keys_.observe([this](GameKey key) { return isPlaying() ? press(key) : KeyPress::passedOn; });
    }
    restartTimer();
    changed.emit();
}

void GameModel::pause() {
    if (!isPlaying()) return;
    state_ = State::paused;
    timer_.reset();
    changed.emit();
}

void GameModel::togglePlayPause() {
    if (isPlaying()) {
        pause();
    } else {
        play();
    }
}

void GameModel::reset() {
    newGame();
    state_ = State::idle;
    timer_.reset();
    changed.emit();
}

void GameModel::stop() {
    timer_.reset();
    keyObservation_.reset();
    if (!isPlaying()) return;
    state_ = State::paused;
    changed.emit();
}

void GameModel::newGame() {
    score_ = 0;
    level_ = 1;
    setUp();
    state_ = State::playing;
}

void GameModel::restartTimer() {
    timer_.reset();
    timer_ = mainLoop_.repeat(stepInterval(), platform::TimerMode::common, [this] {
        if (!isPlaying()) return;
        step();
        changed.emit();
    });
}

void GameModel::endGame() {
    state_ = State::over;
    timer_.reset();
    keyObservation_.reset();
    best_.enter(score_);
}

int GameModel::draw(int count) {
    return uniformBelow(count, randomness_);
}

}  // namespace tidewatch
