#include "wellbeing/games/tetris_model.h"

#include <gtest/gtest.h>

#include "wellbeing/games/tetris_world.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;

struct TetrisScoringTest : testing::Test, test::TetrisWorld {};

TEST_F(TetrisScoringTest, OneLineEarns100) {
    play("IIOO");
    press("<<<_>_>>>>>_");
    EXPECT_EQ(model.lines(), 1);
    EXPECT_EQ(model.score(), 100 + 2 * (16 + 16 + 16));
    EXPECT_EQ(drawing(Piece::left_out)[17], "........OO") << "the upper half of the square is left";
}

TEST_F(TetrisScoringTest, TwoLinesEarn300) {
    play(piecesOfTwoLinesTimes(1));
    clearTwoLines();
    EXPECT_EQ(model.lines(), 2);
    EXPECT_EQ(model.score(), 300 + 2 * (16 + 16 + 15 + 15 + 16));
    EXPECT_EQ(model.grid(), tetris::Grid{});
}

TEST_F(TetrisScoringTest, ThreeLinesEarn500) {
    play("I");
    press("<<<_>_<<<_>_<<<_>_");
    press("^>>>_");
    EXPECT_EQ(model.lines(), 0);
    press("^>>>>_");
    EXPECT_EQ(model.lines(), 3);
    EXPECT_EQ(model.score(), 500 + 2 * (16 + 16 + 15 + 15 + 14 + 14 + 14 + 14));
    EXPECT_EQ(drawing(Piece::left_out)[17], "........II");
}

TEST_F(TetrisScoringTest, FourLinesEarn800) {
    play("I");
    press("<<<_>_<<<_>_<<<_>_<<<_>_");
    press("^>>>_^>>>>_");
    EXPECT_EQ(model.lines(), 4);
    EXPECT_EQ(model.score(), 800 + 2 * (16 + 16 + 15 + 15 + 14 + 14 + 13 + 13 + 14 + 14));
    EXPECT_EQ(model.grid(), tetris::Grid{});
}

TEST_F(TetrisScoringTest, Clearing4LinesAtLevel3Gives2400Points) {
    play(piecesOfTwoLinesTimes(10) + "I");
    for (int i = 0; i < 10; ++i) clearTwoLines();
    ASSERT_EQ(model.level(), 3);
    press("<<<_>_<<<_>_<<<_>_<<<_>_");
    press("^>>>_^>>>>");
    const auto before = model.score();
    press("_");
    EXPECT_EQ(model.score(), before + 2400 + 2 * 14);
    EXPECT_EQ(model.lines(), 24);
}

TEST_F(TetrisScoringTest, MovingFrom9To10LinesRaisesTheLevelTo2AfterTheScoreIsAddedAtLevel1) {
    play(piecesOfTwoLinesTimes(4) + "IIO" + "II" + "T");
    for (int i = 0; i < 4; ++i) clearTwoLines();
    press("<<<_>_>>>>>_");
    ASSERT_EQ(model.lines(), 9);
    ASSERT_EQ(model.level(), 1);
    press("<<<_>");
    const auto before = model.score();
    press("_");
    EXPECT_EQ(model.lines(), 10);
    EXPECT_EQ(model.level(), 2);
    EXPECT_EQ(model.score(), before + 100 + 2 * 16);
}

TEST_F(TetrisScoringTest, TheNextLevelFallsFaster) {
    play(piecesOfTwoLinesTimes(5) + "T");
    for (int i = 0; i < 5; ++i) clearTwoLines();
    ASSERT_EQ(model.level(), 2);
    machine.mainLoop.runFor(504ms);
    EXPECT_EQ(model.falling().row, 0);
    machine.mainLoop.runFor(1ms);
    EXPECT_EQ(model.falling().row, 1);
    machine.mainLoop.runFor(505ms);
    EXPECT_EQ(model.falling().row, 2);
    EXPECT_EQ(machine.mainLoop.timerCount(), 1u);
}

TEST_F(TetrisScoringTest, ABetterScoreIsStoredAtGameOver) {
    play("O");
    press("_");
    EXPECT_FALSE(machine.preferences.contains("tetrisHighScore"));
    lose();
    EXPECT_EQ(storedBest(), model.score());
    EXPECT_EQ(model.best(), model.score());
    EXPECT_GT(model.best(), 0);
}

TEST_F(TetrisScoringTest, AfterGameOverWithAScoreNotAboveBestTheHighScoreIsNotWritten) {
    play("O");
    lose();
    const auto best = model.best();
    // Were it written, the mark would be overwritten.
    machine.preferences.setInteger("tetrisHighScore", -1);
    model.play();
    lose();
    EXPECT_EQ(model.score(), best);
    EXPECT_EQ(storedBest(), -1);
    EXPECT_EQ(model.best(), best);
}

TEST_F(TetrisScoringTest, AGameLeftByResetOrStopDoesNotRecordItsScore) {
    play("O");
    press("_");
    model.stop();
    EXPECT_FALSE(machine.preferences.contains("tetrisHighScore"));
    model.reset();
    EXPECT_FALSE(machine.preferences.contains("tetrisHighScore"));
    EXPECT_EQ(model.best(), 0);
}

}  // namespace
}  // namespace tidewatch
