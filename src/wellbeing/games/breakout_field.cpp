#include "wellbeing/games/breakout_field.h"

#include <algorithm>
#include <array>

namespace tidewatch::breakout {
namespace {

constexpr Rect firstBrick{3, 10, 21.5, 11};
constexpr double columnStep = 24.5;
constexpr double rowStep = 14;

constexpr std::array speeds{2.8, 5.0, 7.8, 11.2};  // of level 1, 2, 3, and from 4 on

constexpr double narrowerPerLevel = 6;
constexpr double narrowestPaddle = 20;

}  // namespace

std::vector<Brick> wallOfBricks() {
    std::vector<Brick> bricks;
    for (int row = 0; row < brickRows; ++row) {
        for (int column = 0; column < brickColumns; ++column) {
            auto rect = firstBrick;
            rect.x += columnStep * column;
            rect.y += rowStep * row;
            bricks.push_back({row * brickColumns + column, true, rect, row});
        }
    }
    return bricks;
}

double launchSpeed(int level) {
    return speeds.at(static_cast<std::size_t>(std::clamp<int>(level, 1, speeds.size()) - 1));
}

double paddleWidth(int level) {
    return std::max(paddleBaseWidth - narrowerPerLevel * (level - 1), narrowestPaddle);
}

}  // namespace tidewatch::breakout
