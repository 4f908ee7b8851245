#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "base/signal.h"
#include "platform/api/main_loop.h"
#include "platform/api/preferences.h"
#include "platform/api/randomness.h"
#include "wellbeing/games/high_score.h"
#include "wellbeing/games/key_monitor.h"
#include "wellbeing/games/tetris_board_rules.h"

namespace tidewatch {

/// The falling-blocks game. Knows nothing of the game gate: whoever owns it decides when a game may begin.
/// The high score is stored as "tetrisHighScore" at the end of a game. Main thread only.
class TetrisModel final {
public:
    enum class State { idle, playing, paused, over };

    /// All of it must outlive the model.
    struct Sources {
        platform::MainLoop& mainLoop;
        platform::Preferences& preferences;
        platform::Randomness& randomness;
        KeyMonitor& keys;
    };

    explicit TetrisModel(const Sources& sources);
    TetrisModel(const TetrisModel&) = delete;
    TetrisModel& operator=(const TetrisModel&) = delete;

    /// Starts a game, or continues a paused one: from then on the piece falls and the keys steer it. Ignored
    /// while playing.
    void play();

    /// Ignored unless playing. The keys stay observed, without effect.
    void pause();
    void togglePlayPause();

    /// Prepares a new game without starting it. An unfinished game's score is lost.
    void reset();

    /// Ends the timer and the observation of the keys; a running game is paused.
    void stop();

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
    [[nodiscard]] State state() const { return state_; }
    [[nodiscard]] std::int64_t score() const { return score_; }
    /// Lines cleared in this game.
    [[nodiscard]] int lines() const { return lines_; }
    /// From 1.
    [[nodiscard]] int level() const { return level_; }
    [[nodiscard]] std::int64_t best() const { return best_.best(); }
    /// 1 to 7; 0 before the first game.
    [[nodiscard]] int nextPiece() const { return nextPiece_; }

    /// The falling piece; its number is 0 before the first game.
    [[nodiscard]] const tetris::Placement& falling() const { return falling_; }
    /// The row where it would settle.
    [[nodiscard]] int ghostRow() const;
    /// Empty before the first game, otherwise four cells.
    [[nodiscard]] std::vector<tetris::Cell> pieceCells() const;
    [[nodiscard]] std::vector<tetris::Cell> ghostCells() const;

    /// Emitted at the end of every operation and of every fall that changed something.
    Signal<> changed;

private:
    [[nodiscard]] bool hasPieceInPlay() const { return state_ == State::playing && falling_.piece != 0; }
    [[nodiscard]] int randomPiece();
    void newGame();
    void restartTimer();
    void spawn();
    void endGame();
    bool tryMove(int byRows, int byColumns);
    void move(int byRows, int byColumns);
    void fall();
    void lock();
    [[nodiscard]] KeyPress press(GameKey key);

    platform::MainLoop& mainLoop_;
    platform::Randomness& randomness_;
    KeyMonitor& keys_;

    tetris::Grid grid_{};
    State state_ = State::idle;
    std::int64_t score_ = 0;
    int lines_ = 0;
    int level_ = 1;
    HighScore best_;
    tetris::Placement falling_;
    int nextPiece_ = 0;
    std::unique_ptr<platform::RepeatingTimer> timer_;
    std::unique_ptr<KeyObservation> keyObservation_;
};

}  // namespace tidewatch
