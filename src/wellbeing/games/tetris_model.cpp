#include "wellbeing/games/tetris_model.h"

#include <array>

namespace tidewatch {
namespace {

constexpr int spawnColumn = 3;
constexpr int pointsPerHardDroppedRow = 2;

/// The shifts that a rotation tries, in this order.
constexpr std::array kicks{0, -1, +1, -2, +2};

}  // namespace

TetrisModel::TetrisModel(const Sources& sources) : GameModel(sources, "tetrisHighScore") {}

void TetrisModel::setUp() {
    grid_ = {};
    lines_ = 0;
    nextPiece_ = randomPiece();
    spawn();
}

int TetrisModel::randomPiece() {
    return 1 + draw(tetris::pieceCount);
}

void TetrisModel::spawn() {
    falling_ = {nextPiece_, 0, 0, spawnColumn};
    nextPiece_ = randomPiece();
    if (tetris::collides(grid_, falling_)) endGame();
}

std::chrono::nanoseconds TetrisModel::stepInterval() const {
    return tetris::gravityInterval(level());
}

void TetrisModel::step() {
    if (!tryMove(1, 0)) lock();
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
    earn(1);
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
    earn(pointsPerHardDroppedRow * distance);
    lock();
    changed.emit();
}

void TetrisModel::lock() {
    tetris::settle(grid_, falling_);
    if (const int cleared = tetris::clearFullRows(grid_); cleared > 0) {
        lines_ += cleared;
        earn(tetris::pointsFor(cleared, level()));
        if (const int reached = tetris::levelAfter(lines_); reached != level()) {
            setLevel(reached);
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
