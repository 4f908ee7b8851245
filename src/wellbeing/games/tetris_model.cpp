#include "wellbeing/games/tetris_model.h"

#include <array>

#include "wellbeing/games/uniform_draw.h"

namespace tidewatch {
namespace {

constexpr int spawnColumn = 3;
constexpr std::int64_t pointsPerHardDroppedRow = 2;

/// The shifts that a rotation tries, in this order.
constexpr std::array kicks{0, -1, +1, -2, +2};

}  // namespace

TetrisModel::TetrisModel(const Sources& sources)
    : mainLoop_(sources.mainLoop),
      randomness_(sources.randomness),
      keys_(sources.keys),
      best_(sources.preferences, "tetrisHighScore") {}

void TetrisModel::play() {
    switch (state_) {
        case State::playing:
            return;
        case State::paused:
            state_ = State::playing;
            break;
        case State::idle:
        case State::over:
            newGame();
            break;
    }
    if (!keyObservation_) keyObservation_ = keys_.observe([this](GameKey key) { return press(key); });
    restartTimer();
    changed.emit();
}

void TetrisModel::pause() {
    if (state_ != State::playing) return;
    state_ = State::paused;
    timer_.reset();
    changed.emit();
}

void TetrisModel::togglePlayPause() {
    if (state_ == State::playing) {
        pause();
    } else {
        play();
    }
}

void TetrisModel::reset() {
    newGame();
    state_ = State::idle;
    timer_.reset();
    changed.emit();
}

void TetrisModel::stop() {
    timer_.reset();
    keyObservation_.reset();
    if (state_ != State::playing) return;
    state_ = State::paused;
    changed.emit();
}

void TetrisModel::newGame() {
    grid_ = {};
    score_ = 0;
    lines_ = 0;
    level_ = 1;
    nextPiece_ = randomPiece();
    spawn();
    state_ = State::playing;
}

int TetrisModel::randomPiece() {
    return 1 + uniformBelow(tetris::pieceCount, randomness_);
}

void TetrisModel::spawn() {
    falling_ = {nextPiece_, 0, 0, spawnColumn};
    nextPiece_ = randomPiece();
    if (tetris::collides(grid_, falling_)) endGame();
}

void TetrisModel::endGame() {
    state_ = State::over;
    timer_.reset();
    keyObservation_.reset();
    best_.enter(score_);
}

void TetrisModel::restartTimer() {
    timer_.reset();
    timer_ =
        mainLoop_.repeat(tetris::gravityInterval(level_), platform::TimerMode::common, [this] { fall(); });
}

void TetrisModel::fall() {
    if (state_ != State::playing) return;
    if (!tryMove(1, 0)) lock();
    changed.emit();
}

bool TetrisModel::tryMove(int byRows, int byColumns) {
    if (!hasPieceInPlay()) return false;
    const auto moved = falling_.moved(byRows, byColumns);
    if (tetris::collides(grid_, moved)) return false;
    falling_ = moved;
    return true;
}

void TetrisModel::move(int byRows, int byColumns) {
    if (tryMove(byRows, byColumns)) changed.emit();
}

void TetrisModel::moveLeft() {
    move(0, -1);
}

void TetrisModel::moveRight() {
    move(0, +1);
}

void TetrisModel::softDrop() {
    if (!tryMove(1, 0)) return;
    ++score_;
    changed.emit();
}

void TetrisModel::rotate() {
    if (!hasPieceInPlay()) return;
    for (const int kick : kicks) {
        auto turned = falling_.moved(0, kick);
        turned.rot = (falling_.rot + 1) % tetris::rotations;
        if (tetris::collides(grid_, turned)) continue;
        falling_ = turned;
        changed.emit();
        return;
    }
}

void TetrisModel::hardDrop() {
    if (!hasPieceInPlay()) return;
    const int distance = tetris::dropDistance(grid_, falling_);
    falling_.row += distance;
    score_ += pointsPerHardDroppedRow * distance;
    lock();
    changed.emit();
}

void TetrisModel::lock() {
    tetris::settle(grid_, falling_);
    if (const int cleared = tetris::clearFullRows(grid_); cleared > 0) {
        lines_ += cleared;
        score_ += tetris::pointsFor(cleared, level_);
        if (const int level = tetris::levelAfter(lines_); level != level_) {
            level_ = level;
            restartTimer();
        }
    }
    spawn();
}

int TetrisModel::ghostRow() const {
    if (falling_.piece == 0) return falling_.row;
    return falling_.row + tetris::dropDistance(grid_, falling_);
}

std::vector<tetris::Cell> TetrisModel::pieceCells() const {
    if (falling_.piece == 0) return {};
    const auto cells = tetris::cellsOf(falling_);
    return {cells.begin(), cells.end()};
}

std::vector<tetris::Cell> TetrisModel::ghostCells() const {
    if (falling_.piece == 0) return {};
    auto ghost = falling_;
    ghost.row = ghostRow();
    const auto cells = tetris::cellsOf(ghost);
    return {cells.begin(), cells.end()};
}

KeyPress TetrisModel::press(GameKey key) {
    if (state_ != State::playing) return KeyPress::passedOn;
    switch (key) {
        case GameKey::p:
            pause();
            break;
        case GameKey::space:
            hardDrop();
            break;
        case GameKey::left:
            moveLeft();
            break;
        case GameKey::right:
            moveRight();
            break;
        case GameKey::down:
            softDrop();
            break;
        case GameKey::up:
            rotate();
            break;
    }
    return KeyPress::consumed;
}

}  // namespace tidewatch
