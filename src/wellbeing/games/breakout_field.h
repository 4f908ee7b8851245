#pragma once

#include <vector>

/// The brick game's field, in points: x from the left, y down from the top.
namespace tidewatch::breakout {

inline constexpr double fieldWidth = 150;
inline constexpr double fieldHeight = 252;

inline constexpr double ballRadius = 4;

inline constexpr double paddleBaseWidth = 40;
inline constexpr double paddleHeight = 7;
inline constexpr double paddleTop = 232.5;

struct Point {
    double x = 0;
    double y = 0;
    bool operator==(const Point&) const = default;
};

struct Vector {
    double dx = 0;
    double dy = 0;
    bool operator==(const Vector&) const = default;
};

struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    bool operator==(const Rect&) const = default;

    [[nodiscard]] double maxX() const { return x + width; }
    [[nodiscard]] double maxY() const { return y + height; }

    /// Larger by `margin` on each side.
    [[nodiscard]] Rect grown(double margin) const {
        return {x - margin, y - margin, width + 2 * margin, height + 2 * margin};
    }

    /// The left and top edges are inside, the right and bottom ones outside.
    [[nodiscard]] bool contains(const Point& point) const {
        return point.x >= x && point.x < maxX() && point.y >= y && point.y < maxY();
    }
};

struct Brick {
    int id = 0;  ///< row x columns + column
    bool alive = true;
    Rect rect;
    int color = 0;  ///< that of its row, from 0
    bool operator==(const Brick&) const = default;
};

inline constexpr int brickColumns = 6;
inline constexpr int brickRows = 5;

/// A whole wall, row by row.
[[nodiscard]] std::vector<Brick> wallOfBricks();

/// Points that the ball travels per step.
[[nodiscard]] double launchSpeed(int level);

[[nodiscard]] double paddleWidth(int level);

}  // namespace tidewatch::breakout
