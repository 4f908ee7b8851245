#include "wellbeing/games/tetris_board_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "platform/fake/fake_randomness.h"
#include "wellbeing/games/scripted_randomness.h"
#include "wellbeing/games/uniform_draw.h"

namespace tidewatch::tetris {
namespace {

using namespace std::chrono_literals;

constexpr int pieceI = 1;
constexpr int pieceO = 4;
constexpr int pieceT = 6;

Grid gridWithFullRows(std::initializer_list<std::size_t> full) {
    Grid grid{};
    for (const auto row : full) grid[row].fill(pieceI);
    return grid;
}

TEST(TetrisBoardRulesTest, TheSquareTurnsToTheSameCells) {
    auto sorted = [](Cells cells) {
        std::ranges::sort(cells, {}, [](const Cell& cell) { return std::pair(cell.row, cell.column); });
        return cells;
    };
    const auto unturned = sorted(cellsOf({pieceO, 0, 5, 3}));
    for (int rot = 1; rot < rotations; ++rot) EXPECT_EQ(sorted(cellsOf({pieceO, rot, 5, 3})), unturned);
}

TEST(TetrisBoardRulesTest, ThereIsACollisionOutsideTheSidesAndTheFloor) {
    const Grid empty{};
    EXPECT_FALSE(collides(empty, {pieceO, 0, 0, 0}));
    EXPECT_TRUE(collides(empty, {pieceO, 0, 0, -1}));
    EXPECT_FALSE(collides(empty, {pieceO, 0, 16, 8}));
    EXPECT_TRUE(collides(empty, {pieceO, 0, 16, 9}));
    EXPECT_TRUE(collides(empty, {pieceO, 0, 17, 8}));
}

TEST(TetrisBoardRulesTest, TheSpaceAboveTheBoardIsFreeBetweenTheSides) {
    const Grid full = gridWithFullRows({0, 1, 2});
    EXPECT_FALSE(collides(full, {pieceO, 0, -2, 0}));
    EXPECT_TRUE(collides(full, {pieceO, 0, -1, 0}));
    EXPECT_TRUE(collides(full, {pieceO, 0, -2, -1}));
    EXPECT_TRUE(collides(full, {pieceO, 0, -2, 9}));
}

TEST(TetrisBoardRulesTest, ASettledCellIsACollision) {
    Grid grid{};
    grid[10][4] = pieceT;
    EXPECT_TRUE(collides(grid, {pieceO, 0, 9, 4}));
    EXPECT_FALSE(collides(grid, {pieceO, 0, 8, 4}));
    EXPECT_FALSE(collides(grid, {pieceO, 0, 10, 5}));
}

TEST(TetrisBoardRulesTest, APieceFallsOntoWhatIsSettledNotThroughIt) {
    Grid grid{};
    EXPECT_EQ(dropDistance(grid, {pieceO, 0, 0, 3}), 16);
    grid[10][4] = pieceT;
    EXPECT_EQ(dropDistance(grid, {pieceO, 0, 0, 3}), 8);
    EXPECT_EQ(dropDistance(grid, {pieceO, 0, 8, 3}), 0);
}

TEST(TetrisBoardRulesTest, APieceLockedPartlyAboveRow0LosesTheCellsAboveTheBoard) {
    Grid grid{};
    settle(grid, {pieceO, 0, -1, 3});
    Grid expected{};
    expected[0][3] = expected[0][4] = pieceO;
    EXPECT_EQ(grid, expected);
    settle(grid, {pieceO, 0, -2, 3});
    EXPECT_EQ(grid, expected);
}

TEST(TetrisBoardRulesTest, RowsAboveAClearedOneMoveDownInTheirOrder) {
    Grid grid = gridWithFullRows({5, 9, 17});
    grid[4][0] = 1;
    grid[8][1] = 2;
    grid[16][2] = 3;
    EXPECT_EQ(clearFullRows(grid), 3);
    Grid expected{};
    expected[7][0] = 1;
    expected[10][1] = 2;
    expected[17][2] = 3;
    EXPECT_EQ(grid, expected);
}

TEST(TetrisBoardRulesTest, ARowWithAHoleStays) {
    Grid grid = gridWithFullRows({17});
    grid[17][6] = 0;
    const Grid before = grid;
    EXPECT_EQ(clearFullRows(grid), 0);
    EXPECT_EQ(grid, before);
}

TEST(TetrisBoardRulesTest, PointsForEveryCountOfLinesAtEveryLevel) {
    for (int level = 1; level <= 20; ++level) {
        EXPECT_EQ(pointsFor(0, level), 0);
        EXPECT_EQ(pointsFor(1, level), 100 * level);
        EXPECT_EQ(pointsFor(2, level), 300 * level);
        EXPECT_EQ(pointsFor(3, level), 500 * level);
        EXPECT_EQ(pointsFor(4, level), 800 * level);
    }
}

TEST(TetrisBoardRulesTest, MoreThanFourLinesCountAsFour) {
    EXPECT_EQ(pointsFor(5, 3), 2400);
    EXPECT_EQ(pointsFor(18, 1), 800);
}

TEST(TetrisBoardRulesTest, EveryTenLinesAreALevel) {
    EXPECT_EQ(levelAfter(0), 1);
    EXPECT_EQ(levelAfter(9), 1);
    EXPECT_EQ(levelAfter(10), 2);
    EXPECT_EQ(levelAfter(19), 2);
    EXPECT_EQ(levelAfter(20), 3);
    EXPECT_EQ(levelAfter(123), 13);
}

TEST(TetrisBoardRulesTest, GravityIntervalsOfLevels1To13) {
    int level = 0;
    for (const auto interval :
         {550ms, 505ms, 460ms, 415ms, 370ms, 325ms, 280ms, 235ms, 190ms, 145ms, 100ms, 90ms, 90ms}) {
        EXPECT_EQ(gravityInterval(++level), interval) << level;
    }
    EXPECT_EQ(gravityInterval(1000), 90ms);
}

TEST(UniformDrawTest, AllNumbersAreDrawnEquallyOften) {
    platform::FakeRandomness randomness(7);
    std::array<int, 7> drawn{};
    for (int i = 0; i < 70'000; ++i) ++drawn.at(static_cast<std::size_t>(uniformBelow(7, randomness)));
    for (const int count : drawn) EXPECT_NEAR(count, 10'000, 500);
}

TEST(UniformDrawTest, TheHighestValuesAreDrawnAgain) {
    // 2^64 leaves 2 when divided by 7.
    test::ScriptedRandomness randomness;
    randomness.add(UINT64_MAX);
    randomness.add(UINT64_MAX - 1);
    randomness.add(UINT64_MAX - 2);
    EXPECT_EQ(uniformBelow(7, randomness), 6);
    EXPECT_EQ(randomness.left(), 0u);
}

}  // namespace
}  // namespace tidewatch::tetris
