#pragma once

#include <chrono>
#include <vector>

#include "wellbeing/games/game_model.h"
#include "wellbeing/games/tetris_board_rules.h"

namespace tidewatch {

/// The falling-blocks game. A step is the fall by a row. The high score is stored as "tetrisHighScore". Main
/// thread only.
class TetrisModel final : public GameModel {
public:
    explicit TetrisModel(const Sources& sources);

    // All of these are ignored unless playing.
    void moveLeft();
    void moveRight();
    /// One row down, for a point. On the ground it has no effect; only gravity settles the piece.
    void softDrop();
    /// A clockwise quarter turn; beside an obstacle shifted by up to two columns, otherwise impossible.
    void rotate();
    /// Down to the ground at once, for two points a row, and settles.
    void hardDrop();

    [[nodiscard]] const tetris::Grid& grid() const { return grid_; }
    /// Lines cleared in this game.
    [[nodiscard]] int lines() const { return lines_; }
    /// 1 to 7; 0 before the first game.
    [[nodiscard]] int nextPiece() const { return nextPiece_; }

    /// The falling piece; its number is 0 before the first game.
    [[nodiscard]] const tetris::Placement& falling() const { return falling_; }
    /// The row where it would settle.
    [[nodiscard]] int ghostRow() const;
    /// Empty before the first game, otherwise four cells.
    [[nodiscard]] std::vector<tetris::Cell> pieceCells() const;
    [[nodiscard]] std::vector<tetris::Cell> ghostCells() const;

private:
    void setUp() override;
    [[nodiscard]] std::chrono::nanoseconds stepInterval() const override;
    void step() override;
    [[nodiscard]] KeyPress press(GameKey key) override;

    [[nodiscard]] bool hasPieceInPlay() const { return isPlaying() && falling_.piece != 0; }
    [[nodiscard]] int randomPiece();
    void spawn();
    bool tryMove(int byRows, int byColumns);
    void move(int byRows, int byColumns);
    void lock();

    tetris::Grid grid_{};
    int lines_ = 0;
    tetris::Placement falling_;
    int nextPiece_ = 0;
};

}  // namespace tidewatch
