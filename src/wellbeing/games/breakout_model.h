#pragma once

#include <chrono>
#include <vector>

#include "wellbeing/games/breakout_ball.h"
#include "wellbeing/games/breakout_field.h"
#include "wellbeing/games/game_model.h"

namespace tidewatch {

/// The brick game, simulated in 60 steps a second. It has no last level: it goes on until the lives are lost.
/// A new game leaves the paddle where it is. The high score is stored as "breakoutHighScore". Main thread
/// only.
class BreakoutModel final : public GameModel {
public:
    explicit BreakoutModel(const Sources& sources);

    /// Lets the ball leave the paddle. Ignored unless playing.
    void launch();

    // The paddle follows in every state. Its centre keeps a distance of 20 from the sides, however narrow it
    // is.
    void moveLeft();
    void moveRight();
    void movePaddle(double by);
    void setPaddle(double to);

    [[nodiscard]] int lives() const { return lives_; }
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

private:
    void setUp() override;
    [[nodiscard]] std::chrono::nanoseconds stepInterval() const override;
    void step() override;
    [[nodiscard]] KeyPress press(GameKey key) override;

    void buildBricks();
    void resetBall();
    void loseBall();
    [[nodiscard]] bool wallIsCleared() const;
    void nextLevel();

    int lives_;
    std::vector<breakout::Brick> bricks_;
    double paddleX_;
    breakout::Ball ball_;
    bool launched_ = false;
};

}  // namespace tidewatch
