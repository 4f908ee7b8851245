#include "wellbeing/games/tetris_model.h"

#include <gtest/gtest.h>

#include "wellbeing/games/tetris_world.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;

struct TetrisCourseTest : testing::Test, test::TetrisWorld {};

TEST_F(TetrisCourseTest, TheGameIsOverWhenANewPieceCollides) {
    play("O");
    for (int i = 0; i < 8; ++i) press("_");
    EXPECT_EQ(model.state(), State::playing);
    press("_");
    EXPECT_EQ(model.state(), State::over);
    EXPECT_EQ(drawing(Piece::left_out)[0], "...OO.....") << "the final board stays";
    EXPECT_EQ(machine.mainLoop.timerCount(), 0u);
    EXPECT_EQ(keys.observers(), 0u);
}

TEST_F(TetrisCourseTest, TheGameIsAlsoLostByGravity) {
    play("O");
    machine.mainLoop.runFor(10min);
    EXPECT_EQ(model.state(), State::over);
    EXPECT_EQ(model.score(), 0);
    EXPECT_EQ(machine.mainLoop.timerCount(), 0u);
}

TEST_F(TetrisCourseTest, NothingMovesOnceTheGameIsOver) {
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

TEST_F(TetrisCourseTest, PlayWhilePlayingChangesNothing) {
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

TEST_F(TetrisCourseTest, APausedGameStandsStillAndContinues) {
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

TEST_F(TetrisCourseTest, PauseOutsidePlayingIsIgnored) {
    model.pause();
    EXPECT_EQ(model.state(), State::idle);
    play("O");
    lose();
    model.pause();
    EXPECT_EQ(model.state(), State::over);
}

TEST_F(TetrisCourseTest, TogglingPausesAndContinues) {
    play("T");
    model.togglePlayPause();
    EXPECT_EQ(model.state(), State::paused);
    model.togglePlayPause();
    EXPECT_EQ(model.state(), State::playing);
}

TEST_F(TetrisCourseTest, ThePKeyPausesButCannotResume) {
    play("T");
    EXPECT_EQ(keys.press(GameKey::p), KeyPress::consumed);
    EXPECT_EQ(model.state(), State::paused);
    EXPECT_EQ(keys.press(GameKey::p), KeyPress::passedOn);
    EXPECT_EQ(model.state(), State::paused);
}

TEST_F(TetrisCourseTest, SixKeysAreConsumedWhilePlaying) {
    play("T");
    for (const auto key :
         {GameKey::left, GameKey::right, GameKey::up, GameKey::down, GameKey::space, GameKey::p}) {
        EXPECT_EQ(keys.press(key), KeyPress::consumed) << static_cast<int>(key);
    }
}

TEST_F(TetrisCourseTest, AKeyIsConsumedEvenIfThePieceCannotMove) {
    play("O");
    press("<<<");
    EXPECT_EQ(keys.press(GameKey::left), KeyPress::consumed);
}

TEST_F(TetrisCourseTest, KeysPassOnOutsidePlaying) {
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

TEST_F(TetrisCourseTest, ResetPreparesAFreshGameWithoutStartingIt) {
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

TEST_F(TetrisCourseTest, PlayAfterResetStartsANewGame) {
    random.addPieces("TZSL");
    model.reset();
    EXPECT_EQ(model.falling().piece, 6);
    model.play();
    EXPECT_EQ(model.state(), State::playing);
    EXPECT_EQ(model.falling().piece, 5);
    EXPECT_EQ(model.nextPiece(), 3);
}

TEST_F(TetrisCourseTest, StopPausesAndLetsGoOfTimerAndKeys) {
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

TEST_F(TetrisCourseTest, StopOutsidePlayingKeepsTheState) {
    model.stop();
    EXPECT_EQ(model.state(), State::idle);
    play("O");
    lose();
    model.stop();
    EXPECT_EQ(model.state(), State::over);
}

TEST_F(TetrisCourseTest, ANewGameAfterALostOneStartsFromNothing) {
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

TEST_F(TetrisCourseTest, TimerAndKeysEndWithTheModel) {
    {
        TetrisModel other({machine.mainLoop, machine.preferences, random, keys});
        other.play();
        EXPECT_EQ(machine.mainLoop.timerCount(), 1u);
    }
    EXPECT_EQ(machine.mainLoop.timerCount(), 0u);
    EXPECT_EQ(keys.press(GameKey::left), KeyPress::passedOn);
    machine.mainLoop.runFor(1s);
}

TEST_F(TetrisCourseTest, ItFallsWhileAMenuIsOpen) {
    play("T");
    machine.mainLoop.setMenu(platform::FakeMainLoop::Menu::open);
    machine.mainLoop.runFor(550ms);
    EXPECT_EQ(model.falling().row, 1);
}

TEST_F(TetrisCourseTest, EveryChangeIsAnnouncedOnceAfterIt) {
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
