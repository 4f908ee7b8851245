#include "wellbeing/games/tetris_board_rules.h"

#include <algorithm>

namespace tidewatch::tetris {
namespace {

struct Shape {
    int boxSize;
    Cells cells;  // in the box, unrotated
};

constexpr std::array<Shape, pieceCount> shapes{{
    {4, {{{1, 0}, {1, 1}, {1, 2}, {1, 3}}}},  // I
    {3, {{{0, 0}, {1, 0}, {1, 1}, {1, 2}}}},  // J
    {3, {{{0, 2}, {1, 0}, {1, 1}, {1, 2}}}},  // L
    {2, {{{0, 0}, {0, 1}, {1, 0}, {1, 1}}}},  // O
    {3, {{{0, 1}, {0, 2}, {1, 0}, {1, 1}}}},  // S
    {3, {{{0, 1}, {1, 0}, {1, 1}, {1, 2}}}},  // T
    {3, {{{0, 0}, {0, 1}, {1, 1}, {1, 2}}}},  // Z
}};

constexpr std::array<std::int64_t, 5> pointsByLines{0, 100, 300, 500, 800};
constexpr int linesPerLevel = 10;

using std::chrono::milliseconds;
constexpr milliseconds slowest(550);
constexpr milliseconds fasterPerLevel(45);
constexpr milliseconds fastest(90);

/// A cell of a box of `size`, after `rot` clockwise quarter turns of the box.
Cell rotated(Cell cell, int rot, int size) {
    const int last = size - 1;
    switch (rot) {
        case 1:
            return {cell.column, last - cell.row};
        case 2:
            return {last - cell.row, last - cell.column};
        case 3:
            return {last - cell.column, cell.row};
        default:
            return cell;
    }
}

template <class AnyGrid>
auto& at(AnyGrid& grid, const Cell& cell) {
    return grid.at(static_cast<std::size_t>(cell.row)).at(static_cast<std::size_t>(cell.column));
}

bool isFull(const std::array<int, columns>& row) {
    return std::ranges::find(row, 0) == row.end();
}

}  // namespace

Cells cellsOf(const Placement& placement) {
    const auto& shape = shapes.at(static_cast<std::size_t>(placement.piece - 1));
    auto cells = shape.cells;
    for (auto& cell : cells) {
        cell = rotated(cell, placement.rot, shape.boxSize);
        cell.row += placement.row;
        cell.column += placement.column;
    }
    return cells;
}

bool collides(const Grid& grid, const Placement& placement) {
    return std::ranges::any_of(cellsOf(placement), [&](const Cell& cell) {
        if (cell.column < 0 || cell.column >= columns || cell.row >= rows) return true;
        return cell.row >= 0 && at(grid, cell) != 0;
    });
}

int dropDistance(const Grid& grid, const Placement& placement) {
    int distance = 0;
    while (!collides(grid, placement.moved(distance + 1, 0))) ++distance;
    return distance;
}

void settle(Grid& grid, const Placement& placement) {
    for (const auto& cell : cellsOf(placement)) {
        const bool inside = cell.row >= 0 && cell.row < rows && cell.column >= 0 && cell.column < columns;
        if (inside) at(grid, cell) = placement.piece;
    }
}

int clearFullRows(Grid& grid) {
    // The rows that stay sink to the bottom in their order.
    const auto staying = std::stable_partition(grid.begin(), grid.end(), isFull);
    const auto cleared = static_cast<int>(staying - grid.begin());
    std::fill(grid.begin(), staying, std::array<int, columns>{});
    return cleared;
}

std::int64_t pointsFor(int lines, int level) {
    const auto index = std::clamp<std::size_t>(static_cast<std::size_t>(lines), 0, pointsByLines.size() - 1);
    return pointsByLines[index] * level;
}

int levelAfter(int lines) {
    return lines / linesPerLevel + 1;
}

milliseconds gravityInterval(int level) {
    return std::max(slowest - fasterPerLevel * (level - 1), fastest);
}

}  // namespace tidewatch::tetris
