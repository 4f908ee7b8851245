#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "base/signal.h"
#include "platform/api/main_loop.h"
#include "platform/api/preferences.h"
#include "platform/api/randomness.h"
#include "wellbeing/games/breakout_ball.h"
#include "wellbeing/games/breakout_field.h"
#include "wellbeing/games/high_score.h"
#include "wellbeing/games/key_monitor.h"

namespace tidewatch {

/// The brick game, simulated in 60 steps a second. It has no last level: it goes on until the lives are lost.
/// Knows nothing of the game gate: whoever owns it decides when a game may begin. The high score is stored as
/// "breakoutHighScore" at the end of a game. Main thread only.
class BreakoutModel final {
public:
    enum class State { idle, playing, paused, over, won /** not used */ };

    /// All of it must outlive the model.
    struct Sources {
        platform::MainLoop& mainLoop;
        platform::Preferences& preferences;
        platform::Randomness& randomness;
        KeyMonitor& keys;
    };

    explicit BreakoutModel(const Sources& sources);
    BreakoutModel(const BreakoutModel&) = delete;
    BreakoutModel& operator=(const BreakoutModel&) = delete;

    /// Starts a game, or continues a paused one: from then on the simulation runs and the keys steer the
    /// paddle. Ignored while playing.
    void play();

    /// Ignored unless playing. The keys stay observed, without effect.
    void pause();
    void togglePlayPause();

    /// Prepares a new game without starting it; the paddle stays where it is. An unfinished game's score is
    /// lost.
    void reset();

    /// Ends the timer and the observation of the keys; a running game is paused.
    void stop();

    /// Lets the ball leave the paddle. Ignored unless playing.
    void launch();

    // The paddle follows in every state. Its centre keeps a distance of 20 from the sides, however narrow it
    // is.
    void moveLeft();
    void moveRight();
    void movePaddle(double by);
    void setPaddle(double to);

    [[nodiscard]] State state() const { return state_; }
    [[nodiscard]] std::int64_t score() const { return score_; }
    [[nodiscard]] int lives() const { return lives_; }
    /// From 1.
    [[nodiscard]] int level() const { return level_; }
    [[nodiscard]] std::int64_t best() const { return best_.best(); }
    /// Empty before the first game.
    [[nodiscard]] const std::vector<breakout::Brick>& bricks() const { return bricks_; }
    /// The centre of the paddle.
    [[nodiscard]] double paddleX() const { return paddleX_; }
    /// The centre of the ball.
    [[nodiscard]] const breakout::Point& ball() const { return ball_.center; }
    /// The ball's displacement per step.
    [[nodiscard]] const breakout::Vector& velocity() const { return ball_.velocity; }
    /// Whether the ball has left the paddle.
    [[nodiscard]] bool launched() const { return launched_; }

    /// Emitted at the end of every operation that changed something, and of every step.
    Signal<> changed;

private:
    void newGame();
    void buildBricks();
    void resetBall();
    void startTimer();
    [[nodiscard]] KeyPress press(GameKey key);

    void step();
    void loseBall();
    void endGame();
    [[nodiscard]] bool wallIsCleared() const;
    void nextLevel();

    platform::MainLoop& mainLoop_;
    platform::Randomness& randomness_;
    KeyMonitor& keys_;

    State state_ = State::idle;
    std::int64_t score_ = 0;
    int lives_;
    int level_ = 1;
    HighScore best_;
    std::vector<breakout::Brick> bricks_;
    double paddleX_;
    breakout::Ball ball_;
    bool launched_ = false;
    std::unique_ptr<platform::RepeatingTimer> timer_;
    std::unique_ptr<KeyObservation> keyObservation_;
};

}  // namespace tidewatch
