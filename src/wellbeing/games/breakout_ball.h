#pragma once

#include <vector>

#include "wellbeing/games/breakout_field.h"

/// How the brick game's ball moves. A step is not subdivided: a fast ball jumps, and only where it ends
/// counts.
namespace tidewatch::breakout {

struct Ball {
    Point center;
    Vector velocity;  ///< displacement per step
    bool operator==(const Ball&) const = default;
};

void bounceOffWalls(Ball& ball);

/// A falling ball that touches the paddle leaves upward at the same speed (2.8 at least), at an angle that
/// depends on where it hits: straight up in the middle, 60 degrees at the ends.
void bounceOffPaddle(Ball& ball, double paddleX, int level);

enum class Hit { nothing, brick };

/// Kills the first living brick that the ball touches, and reflects the ball. `previousY` is where its centre
/// was before the step: above or below the brick it is reflected vertically, otherwise horizontally.
Hit hitBrick(Ball& ball, std::vector<Brick>& bricks, double previousY);

/// One step: the displacement, then walls, paddle and bricks.
Hit moveBall(Ball& ball, std::vector<Brick>& bricks, double paddleX, int level);

/// Whether it has fallen below the field.
[[nodiscard]] bool isLost(const Ball& ball);

}  // namespace tidewatch::breakout
