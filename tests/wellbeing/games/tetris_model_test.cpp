#include "wellbeing/games/tetris_model.h"

#include <gtest/gtest.h>

#include "wellbeing/games/tetris_world.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;

struct TetrisModelTest : testing::Test, test::TetrisWorld {};

TEST_F(TetrisModelTest, StartsIdleOnAnEmptyBoard) {
    machine.preferences.setInteger("tetrisHighScore", 777);
    const TetrisModel other({machine.mainLoop, machine.preferences, random, keys});
    EXPECT_EQ(other.state(), State::idle);
    EXPECT_EQ(other.grid(), tetris::Grid{});
    EXPECT_EQ(other.score(), 0);
    EXPECT_EQ(other.lines(), 0);
    EXPECT_EQ(other.level(), 1);
    EXPECT_EQ(other.best(), 777);
    EXPECT_EQ(other.falling(), tetris::Placement{});
    EXPECT_EQ(other.nextPiece(), 0);
    EXPECT_EQ(other.ghostRow(), 0);
    EXPECT_TRUE(other.pieceCells().empty());
    EXPECT_TRUE(other.ghostCells().empty());
    EXPECT_EQ(machine.mainLoop.timerCount(), 0u);
    EXPECT_EQ(keys.observers(), 0u);
}

TEST_F(TetrisModelTest, AGameStartsWithTheFirstPieceAtTheTopAndTheSecondAnnounced) {
    play("TZS");
    EXPECT_EQ(model.state(), State::playing);
    EXPECT_EQ(model.falling(), (tetris::Placement{6, 0, 0, 3}));
    EXPECT_EQ(model.nextPiece(), 7);
    EXPECT_EQ(random.left(), 1u);
    EXPECT_EQ(machine.mainLoop.timerCount(), 1u);
    EXPECT_EQ(keys.observers(), 1u);
}

TEST_F(TetrisModelTest, EachOfTheSevenPiecesCanBeDrawn) {
    play("IJLOSTZ");
    for (int piece = 1; piece <= 7; ++piece) {
        EXPECT_EQ(model.falling().piece, piece);
        press("_");
    }
}

TEST_F(TetrisModelTest, APieceFallsOneRowPerInterval) {
    play("T");
    machine.mainLoop.runFor(549ms);
    EXPECT_EQ(model.falling().row, 0);
    machine.mainLoop.runFor(1ms);
    EXPECT_EQ(model.falling().row, 1);
    machine.mainLoop.runFor(550ms);
    EXPECT_EQ(model.falling().row, 2);
    EXPECT_EQ(model.score(), 0) << "gravity earns nothing";
}

TEST_F(TetrisModelTest, APieceOnTheGroundLocksAtTheNextFall) {
    play("OT");
    for (int row = 0; row < 16; ++row) fallOneRow();
    EXPECT_EQ(model.falling(), (tetris::Placement{4, 0, 16, 3}));
    EXPECT_EQ(model.grid(), tetris::Grid{});
    fallOneRow();
    EXPECT_EQ(model.falling(), (tetris::Placement{6, 0, 0, 3}));
    EXPECT_EQ(drawing(Piece::left_out)[16], "...OO.....");
    EXPECT_EQ(drawing(Piece::left_out)[17], "...OO.....");
}

TEST_F(TetrisModelTest, PiecesMoveUpToTheSides) {
    play("O");
    press("<<<<<");
    EXPECT_EQ(model.falling().column, 0);
    press(">>>>>>>>>>>>");
    EXPECT_EQ(model.falling().column, 8);
    model.moveLeft();
    model.moveRight();
    model.moveLeft();
    EXPECT_EQ(model.falling().column, 7);
}

TEST_F(TetrisModelTest, PiecesDoNotMoveIntoSettledOnes) {
    play("O");
    for (int i = 0; i < 8; ++i) press("_");
    press(">>>");
    for (int i = 0; i < 12; ++i) press("v");
    EXPECT_EQ(model.falling().column, 6);
    press("<");
    EXPECT_EQ(model.falling().column, 5);
    press("<");
    EXPECT_EQ(model.falling().column, 5);
}

TEST_F(TetrisModelTest, ASoftDropEarnsAPointARow) {
    play("T");
    press("vvv");
    EXPECT_EQ(model.falling().row, 3);
    EXPECT_EQ(model.score(), 3);
}

TEST_F(TetrisModelTest, ASoftDropIntoTheFloorChangesNothingUntilTheNextTimerFireLocksIt) {
    play("OT");
    press("vvvvvvvvvvvvvvvv");
    EXPECT_EQ(model.score(), 16);
    int changes = 0;
    const auto counting = model.changed.connect([&] { ++changes; });
    press("vvv");
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(model.score(), 16);
    EXPECT_EQ(model.falling(), (tetris::Placement{4, 0, 16, 3}));
    fallOneRow();
    EXPECT_EQ(model.falling(), (tetris::Placement{6, 0, 0, 3}));
}

TEST_F(TetrisModelTest, AHardDropEarnsTwoPointsARowAndLocks) {
    play("OT");
    press("vv");
    model.hardDrop();
    EXPECT_EQ(model.score(), 2 + 2 * 14);
    EXPECT_EQ(drawing(Piece::left_out)[17], "...OO.....");
    EXPECT_EQ(model.falling(), (tetris::Placement{6, 0, 0, 3}));
}

TEST_F(TetrisModelTest, AHardDropOfZeroRowsLocksInPlaceAndScores0) {
    play("OT");
    press("vvvvvvvvvvvvvvvv");
    press("_");
    EXPECT_EQ(model.score(), 16);
    EXPECT_EQ(drawing(Piece::left_out)[17], "...OO.....");
    EXPECT_EQ(model.falling().piece, 6);
}

TEST_F(TetrisModelTest, TheGhostLiesWhereAHardDropWouldLock) {
    play("OT");
    press("_<");
    EXPECT_EQ(model.ghostRow(), 14);
    EXPECT_EQ(model.ghostCells(), (std::vector<tetris::Cell>{{14, 3}, {15, 2}, {15, 3}, {15, 4}}));
    EXPECT_EQ(model.pieceCells(), (std::vector<tetris::Cell>{{0, 3}, {1, 2}, {1, 3}, {1, 4}}));
    press("_");
    EXPECT_EQ(drawing(Piece::left_out)[14], "...T......");
    EXPECT_EQ(drawing(Piece::left_out)[15], "..TTT.....");
}

}  // namespace
}  // namespace tidewatch
