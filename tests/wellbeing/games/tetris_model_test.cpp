#include "wellbeing/games/tetris_model.h"

#include <gtest/gtest.h>

#include "wellbeing/games/tetris_world.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;

struct TetrisModelTest : testing::Test, test::TetrisWorld {
    using State = TetrisModel::State;

    /// Plays on until the game is over: pieces pile up in the middle.
    void lose() {
        for (int i = 0; i < 100 && model.state() == State::playing; ++i) press("_");
        ASSERT_EQ(model.state(), State::over);
    }
};

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

TEST_F(TetrisModelTest, OneLineEarns100) {
    play("IIOO");
    press("<<<_>_>>>>>_");
    EXPECT_EQ(model.lines(), 1);
    EXPECT_EQ(model.score(), 100 + 2 * (16 + 16 + 16));
    EXPECT_EQ(drawing(Piece::left_out)[17], "........OO") << "the upper half of the square is left";
}

TEST_F(TetrisModelTest, TwoLinesEarn300) {
    play(piecesOfTwoLinesTimes(1));
    clearTwoLines();
    EXPECT_EQ(model.lines(), 2);
    EXPECT_EQ(model.score(), 300 + 2 * (16 + 16 + 15 + 15 + 16));
    EXPECT_EQ(model.grid(), tetris::Grid{});
}

TEST_F(TetrisModelTest, ThreeLinesEarn500) {
    play("I");
    press("<<<_>_<<<_>_<<<_>_");
    press("^>>>_");
    EXPECT_EQ(model.lines(), 0);
    press("^>>>>_");
    EXPECT_EQ(model.lines(), 3);
    EXPECT_EQ(model.score(), 500 + 2 * (16 + 16 + 15 + 15 + 14 + 14 + 14 + 14));
    EXPECT_EQ(drawing(Piece::left_out)[17], "........II");
}

TEST_F(TetrisModelTest, FourLinesEarn800) {
    play("I");
    press("<<<_>_<<<_>_<<<_>_<<<_>_");
    press("^>>>_^>>>>_");
    EXPECT_EQ(model.lines(), 4);
    EXPECT_EQ(model.score(), 800 + 2 * (16 + 16 + 15 + 15 + 14 + 14 + 13 + 13 + 14 + 14));
    EXPECT_EQ(model.grid(), tetris::Grid{});
}

TEST_F(TetrisModelTest, Clearing4LinesAtLevel3Gives2400Points) {
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

TEST_F(TetrisModelTest, MovingFrom9To10LinesRaisesTheLevelTo2AfterTheScoreIsAddedAtLevel1) {
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

TEST_F(TetrisModelTest, TheNextLevelFallsFaster) {
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

TEST_F(TetrisModelTest, TheGameIsOverWhenANewPieceCollides) {
    play("O");
    for (int i = 0; i < 8; ++i) press("_");
    EXPECT_EQ(model.state(), State::playing);
    press("_");
    EXPECT_EQ(model.state(), State::over);
    EXPECT_EQ(drawing(Piece::left_out)[0], "...OO.....") << "the final board stays";
    EXPECT_EQ(machine.mainLoop.timerCount(), 0u);
    EXPECT_EQ(keys.observers(), 0u);
}

TEST_F(TetrisModelTest, TheGameIsAlsoLostByGravity) {
    play("O");
    machine.mainLoop.runFor(10min);
    EXPECT_EQ(model.state(), State::over);
    EXPECT_EQ(model.score(), 0);
    EXPECT_EQ(machine.mainLoop.timerCount(), 0u);
}

TEST_F(TetrisModelTest, NothingMovesOnceTheGameIsOver) {
    play("O");
    lose();
    const auto falling = model.falling();
    const auto grid = model.grid();
    const auto score = model.score();
    model.moveLeft();
    model.moveRight();
    model.softDrop();
    model.rotate();
    model.hardDrop();
    EXPECT_EQ(model.falling(), falling);
    EXPECT_EQ(model.grid(), grid);
    EXPECT_EQ(model.score(), score);
}

TEST_F(TetrisModelTest, ABetterScoreIsStoredAtGameOver) {
    play("O");
    press("_");
    EXPECT_FALSE(machine.preferences.contains("tetrisHighScore"));
    lose();
    EXPECT_EQ(storedBest(), model.score());
    EXPECT_EQ(model.best(), model.score());
    EXPECT_GT(model.best(), 0);
}

TEST_F(TetrisModelTest, AfterGameOverWithAScoreNotAboveBestTheHighScoreIsNotWritten) {
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

TEST_F(TetrisModelTest, AGameLeftByResetOrStopDoesNotRecordItsScore) {
    play("O");
    press("_");
    model.stop();
    EXPECT_FALSE(machine.preferences.contains("tetrisHighScore"));
    model.reset();
    EXPECT_FALSE(machine.preferences.contains("tetrisHighScore"));
    EXPECT_EQ(model.best(), 0);
}

TEST_F(TetrisModelTest, PlayWhilePlayingChangesNothing) {
    play("T");
    machine.mainLoop.runFor(300ms);
    int changes = 0;
    const auto counting = model.changed.connect([&] { ++changes; });
    model.play();
    EXPECT_EQ(changes, 0);
    machine.mainLoop.runFor(250ms);
    EXPECT_EQ(model.falling().row, 1) << "the timer was not restarted";
    EXPECT_EQ(keys.observers(), 1u);
}

TEST_F(TetrisModelTest, APausedGameStandsStillAndContinues) {
    play("T");
    press("vv");
    model.pause();
    EXPECT_EQ(model.state(), State::paused);
    EXPECT_EQ(machine.mainLoop.timerCount(), 0u);
    EXPECT_EQ(keys.observers(), 1u) << "the keys stay observed";
    machine.mainLoop.runFor(1min);
    press("v<_^");
    model.hardDrop();
    EXPECT_EQ(model.falling(), (tetris::Placement{6, 0, 2, 3}));
    model.play();
    EXPECT_EQ(model.state(), State::playing);
    EXPECT_EQ(keys.observers(), 1u);
    fallOneRow();
    EXPECT_EQ(model.falling().row, 3);
}

TEST_F(TetrisModelTest, PauseOutsidePlayingIsIgnored) {
    model.pause();
    EXPECT_EQ(model.state(), State::idle);
    play("O");
    lose();
    model.pause();
    EXPECT_EQ(model.state(), State::over);
}

TEST_F(TetrisModelTest, TogglingPausesAndContinues) {
    play("T");
    model.togglePlayPause();
    EXPECT_EQ(model.state(), State::paused);
    model.togglePlayPause();
    EXPECT_EQ(model.state(), State::playing);
}

TEST_F(TetrisModelTest, ThePKeyPausesButCannotResume) {
    play("T");
    EXPECT_EQ(keys.press(GameKey::p), KeyPress::consumed);
    EXPECT_EQ(model.state(), State::paused);
    EXPECT_EQ(keys.press(GameKey::p), KeyPress::passedOn);
    EXPECT_EQ(model.state(), State::paused);
}

TEST_F(TetrisModelTest, SixKeysAreConsumedWhilePlaying) {
    play("T");
    for (const auto key :
         {GameKey::left, GameKey::right, GameKey::up, GameKey::down, GameKey::space, GameKey::p}) {
        EXPECT_EQ(keys.press(key), KeyPress::consumed) << static_cast<int>(key);
    }
}

TEST_F(TetrisModelTest, AKeyIsConsumedEvenIfThePieceCannotMove) {
    play("O");
    press("<<<");
    EXPECT_EQ(keys.press(GameKey::left), KeyPress::consumed);
}

TEST_F(TetrisModelTest, KeysPassOnOutsidePlaying) {
    play("T");
    for (const auto outside : {State::paused, State::idle}) {
        if (outside == State::paused) model.pause();
        if (outside == State::idle) model.reset();
        ASSERT_EQ(model.state(), outside);
        for (const auto key :
             {GameKey::left, GameKey::right, GameKey::up, GameKey::down, GameKey::space, GameKey::p}) {
            EXPECT_EQ(keys.press(key), KeyPress::passedOn);
        }
    }
}

TEST_F(TetrisModelTest, ResetPreparesAFreshGameWithoutStartingIt) {
    play("TZ");
    press("_v");
    model.reset();
    EXPECT_EQ(model.state(), State::idle);
    EXPECT_EQ(model.grid(), tetris::Grid{});
    EXPECT_EQ(model.score(), 0);
    EXPECT_NE(model.falling().piece, 0);
    EXPECT_EQ(model.falling().row, 0);
    EXPECT_NE(model.nextPiece(), 0);
    EXPECT_EQ(machine.mainLoop.timerCount(), 0u);
    EXPECT_EQ(keys.observers(), 1u) << "the keys stay observed as they were";
    machine.mainLoop.runFor(1min);
    EXPECT_EQ(model.falling().row, 0);
}

TEST_F(TetrisModelTest, PlayAfterResetStartsANewGame) {
    random.addPieces("TZSL");
    model.reset();
    EXPECT_EQ(model.falling().piece, 6);
    model.play();
    EXPECT_EQ(model.state(), State::playing);
    EXPECT_EQ(model.falling().piece, 5);
    EXPECT_EQ(model.nextPiece(), 3);
}

TEST_F(TetrisModelTest, StopPausesAndLetsGoOfTimerAndKeys) {
    play("T");
    press("v");
    model.stop();
    EXPECT_EQ(model.state(), State::paused);
    EXPECT_EQ(machine.mainLoop.timerCount(), 0u);
    EXPECT_EQ(keys.observers(), 0u);
    model.play();
    EXPECT_EQ(model.falling(), (tetris::Placement{6, 0, 1, 3})) << "the same game";
    EXPECT_EQ(keys.observers(), 1u);
}

TEST_F(TetrisModelTest, StopOutsidePlayingKeepsTheState) {
    model.stop();
    EXPECT_EQ(model.state(), State::idle);
    play("O");
    lose();
    model.stop();
    EXPECT_EQ(model.state(), State::over);
}

TEST_F(TetrisModelTest, ANewGameAfterALostOneStartsFromNothing) {
    play(piecesOfTwoLinesTimes(5) + "O");
    for (int i = 0; i < 5; ++i) clearTwoLines();
    lose();
    model.play();
    EXPECT_EQ(model.state(), State::playing);
    EXPECT_EQ(model.grid(), tetris::Grid{});
    EXPECT_EQ(model.score(), 0);
    EXPECT_EQ(model.lines(), 0);
    EXPECT_EQ(model.level(), 1);
    machine.mainLoop.runFor(549ms);
    EXPECT_EQ(model.falling().row, 0) << "at the first level's speed";
}

TEST_F(TetrisModelTest, TimerAndKeysEndWithTheModel) {
    {
        TetrisModel other({machine.mainLoop, machine.preferences, random, keys});
        other.play();
        EXPECT_EQ(machine.mainLoop.timerCount(), 1u);
    }
    EXPECT_EQ(machine.mainLoop.timerCount(), 0u);
    EXPECT_EQ(keys.press(GameKey::left), KeyPress::passedOn);
    machine.mainLoop.runFor(1s);
}

TEST_F(TetrisModelTest, ItFallsWhileAMenuIsOpen) {
    play("T");
    machine.mainLoop.setMenu(platform::FakeMainLoop::Menu::open);
    machine.mainLoop.runFor(550ms);
    EXPECT_EQ(model.falling().row, 1);
}

TEST_F(TetrisModelTest, EveryChangeIsAnnouncedOnceAfterIt) {
    int changes = 0;
    State seen = State::idle;
    const auto counting = model.changed.connect([&] {
        ++changes;
        seen = model.state();
    });
    play("O");
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(seen, State::playing);
    press("<");
    EXPECT_EQ(changes, 2);
    press("_");
    EXPECT_EQ(changes, 3);
    fallOneRow();
    EXPECT_EQ(changes, 4);
    press("p");
    EXPECT_EQ(changes, 5);
    EXPECT_EQ(seen, State::paused);
    model.reset();
    EXPECT_EQ(changes, 6);
    EXPECT_EQ(seen, State::idle);
}

}  // namespace
}  // namespace tidewatch
