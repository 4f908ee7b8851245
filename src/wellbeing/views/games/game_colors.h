#pragma once

#include <array>

#include "shell/themes/color.h"
#include "wellbeing/games/breakout_field.h"
#include "wellbeing/games/tetris_board_rules.h"

namespace tidewatch {

// How the themes' colours are completed.

/// The rows of bricks from the top, where the theme has no colours.
inline constexpr std::array<Color, breakout::brickRows> brickColors{{
    {0.82, 0.34, 0.34},
    {0.88, 0.54, 0.29},
    {0.91, 0.77, 0.35},
    {0.48, 0.85, 0.56},
    {0.42, 0.62, 0.83},
}};

/// The empty cell and pieces 1 to 7, apart from any theme.
inline constexpr std::array<Color, tetris::pieceCount + 1> pieceColors{{
    {0, 0, 0, 0},
    {0.36, 0.78, 0.84},
    {0.42, 0.62, 0.83},
    {0.88, 0.54, 0.29},
    {0.91, 0.77, 0.35},
    {0.48, 0.85, 0.56},
    {0.61, 0.48, 0.85},
    {0.82, 0.34, 0.34},
}};

/// What tells pieces apart whose colours look alike, above all to those who see red and green alike.
enum class PieceMark { none, dot, bar };

/// Of pieces 1 to 7: no two with the same mark have similar colours in any theme.
inline constexpr std::array<PieceMark, tetris::pieceCount> pieceMarks{
    PieceMark::none, PieceMark::none, PieceMark::none, PieceMark::dot,
    PieceMark::bar,  PieceMark::dot,  PieceMark::bar,
};

}  // namespace tidewatch
