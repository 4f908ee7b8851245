#pragma once

#include <array>
#include <chrono>
#include <cstdint>

/// The rules of the falling-blocks board, without time and chance. Rows count down from 0 at the top, columns
/// from 0 at the left. Pieces are numbered from 1 to 7: I, J, L, O, S, T, Z.
namespace tidewatch::tetris {

inline constexpr int rows = 18;
inline constexpr int columns = 10;
inline constexpr int pieceCount = 7;
inline constexpr int rotations = 4;

/// Settled cells: 0 if empty, otherwise the number of the piece.
using Grid = std::array<std::array<int, columns>, rows>;

struct Cell {
    int row = 0;
    int column = 0;
    bool operator==(const Cell&) const = default;
};

inline constexpr int cellsOfAPiece = 4;
using Cells = std::array<Cell, cellsOfAPiece>;

/// A piece somewhere over the board.
struct Placement {
    int piece = 0;   ///< 1 to 7
    int rot = 0;     ///< clockwise quarter turns, 0 to 3
    int row = 0;     ///< of the top left corner of the piece's box
    int column = 0;  ///< likewise
    bool operator==(const Placement&) const = default;

    [[nodiscard]] Placement moved(int byRows, int byColumns) const {
        return {piece, rot, row + byRows, column + byColumns};
    }
};

/// Where the piece's cells are; some may be outside the board.
[[nodiscard]] Cells cellsOf(const Placement& placement);

/// Whether a cell is outside the sides or the floor, or settled already. The space above the board is free.
[[nodiscard]] bool collides(const Grid& grid, const Placement& placement);

/// How many rows a piece that does not collide can fall.
[[nodiscard]] int dropDistance(const Grid& grid, const Placement& placement);

/// Writes the piece into the grid; cells outside the board are lost.
void settle(Grid& grid, const Placement& placement);

/// Removes the full rows; the rows above move down. Returns their number.
int clearFullRows(Grid& grid);

/// The points for clearing `lines` rows at once, 0 to 4.
[[nodiscard]] std::int64_t pointsFor(int lines, int level);

/// The level after that many cleared lines.
[[nodiscard]] int levelAfter(int lines);

/// How long a piece rests on each row.
[[nodiscard]] std::chrono::milliseconds gravityInterval(int level);

}  // namespace tidewatch::tetris
