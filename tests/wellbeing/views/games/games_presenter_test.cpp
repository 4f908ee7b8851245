#include "wellbeing/views/games/games_presenter.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <chrono>

#include "tests/support/presenter_probe.h"
#include "wellbeing/views/games/games_scene.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;

struct GamesPresenterTest : testing::Test, GamesWorld {
    /// All that the panel shows, with the other game left out.
    void expectGolden(const char* name) {
        auto shown = test::probe(presenter_);
        shown.remove(presenter_.game() == GamesPresenter::Tetris ? "breakout" : "tetris");
        test::expectGolden(shown, QString(TIDEWATCH_GOLDEN_PANEL "/%1.json").arg(name));
    }
};

TEST_F(GamesPresenterTest, Charging) {
    charge(20 * 60 + 17);
    presenter_.setVisible(true);
    expectGolden("charging");
}

TEST_F(GamesPresenterTest, Locked) {
    play();
    presenter_.leave();
    wait(90s);
    expectGolden("locked");
}

TEST_F(GamesPresenterTest, Ready) {
    presenter_.setVisible(true);
    presenter_.switchGame();
    expectGolden("ready");
}

TEST_F(GamesPresenterTest, PlayingTetris) {
    playSomeTetris();
    expectGolden("tetris");
}

TEST_F(GamesPresenterTest, TetrisPaused) {
    playSomeTetris();
    pressKeys("p");
    expectGolden("tetris-paused");
}

TEST_F(GamesPresenterTest, TetrisOver) {
    loseTetris();
    expectGolden("tetris-over");
}

TEST_F(GamesPresenterTest, BricksBeforeTheLaunch) {
    presenter_.switchGame();
    play();
    expectGolden("bricks-ready");
}

TEST_F(GamesPresenterTest, PlayingBricks) {
    playSomeBricks();
    expectGolden("bricks");
}

TEST_F(GamesPresenterTest, BricksPaused) {
    playSomeBricks();
    presenter_.breakout()->press(0);
    expectGolden("bricks-paused");
}

TEST_F(GamesPresenterTest, BricksOver) {
    loseBricks();
    expectGolden("bricks-over");
}

TEST_F(GamesPresenterTest, EitherArrowSwitchesToTheOtherGame) {
    presenter_.setVisible(true);
    EXPECT_EQ(presenter_.title(), "TETRIS");
    presenter_.switchGame();
    EXPECT_EQ(presenter_.title(), "BRICKS");
    EXPECT_EQ(presenter_.playText(), "JUGAR BRICKS");
    presenter_.switchGame();
    EXPECT_EQ(presenter_.title(), "TETRIS");
}

TEST_F(GamesPresenterTest, SwitchingGamesIsImpossibleDuringASession) {
    play();
    presenter_.switchGame();
    EXPECT_EQ(presenter_.game(), GamesPresenter::Tetris);
    presenter_.leave();
    presenter_.switchGame();
    EXPECT_EQ(presenter_.game(), GamesPresenter::Breakout);
}

TEST_F(GamesPresenterTest, PlayingSpendsTheGameAndStartsTheChosenOne) {
    presenter_.switchGame();
    play();
    EXPECT_TRUE(gate_.playingNow());
    EXPECT_EQ(presenter_.face(), GamesPresenter::Playing);
    EXPECT_EQ(presenter_.breakout()->model().state(), BreakoutModel::State::playing);
    EXPECT_EQ(presenter_.tetris()->model().state(), TetrisModel::State::idle);
}

TEST_F(GamesPresenterTest, PressingPlayWhileTheStateHasJustChangedToLockedDoesNothing) {
    presenter_.setVisible(true);
    ASSERT_EQ(presenter_.face(), GamesPresenter::Ready);
    // In another panel.
    ASSERT_TRUE(gate_.startPlay());
    gate_.endPlay();
    presenter_.play();
    EXPECT_FALSE(gate_.playingNow());
    EXPECT_EQ(presenter_.face(), GamesPresenter::Locked);
    EXPECT_EQ(presenter_.tetris()->model().state(), TetrisModel::State::idle);
}

TEST_F(GamesPresenterTest, TheLockCountsDownToTheSecond) {
    play();
    presenter_.leave();
    EXPECT_EQ(presenter_.timeText(), "Vuelve en 2h 00m");
    wait(1h + 1s);
    EXPECT_EQ(presenter_.timeText(), "Vuelve en 59m 59s");
    wait(59min + 10s);
    EXPECT_EQ(presenter_.timeText(), "Vuelve en 49s");
    wait(49s);
    EXPECT_EQ(presenter_.face(), GamesPresenter::Charging);
    EXPECT_EQ(presenter_.timeText(), "Trabaja 1h 00m");
}

TEST_F(GamesPresenterTest, TheChargeIsShownToTheSecond) {
    charge(1);
    presenter_.setVisible(true);
    EXPECT_EQ(presenter_.timeText(), "Trabaja 59m 59s");
    gate_.tickWorkSecond();
    EXPECT_EQ(presenter_.timeText(), "Trabaja 59m 58s");
    EXPECT_DOUBLE_EQ(presenter_.chargeProgress(), 2.0 / 3600);
}

TEST_F(GamesPresenterTest, ClosingDuringAGameEndsTheSessionAndReopeningShowsTheLock) {
    playSomeTetris();
    presenter_.setVisible(false);
    EXPECT_FALSE(gate_.playingNow());
    EXPECT_EQ(presenter_.tetris()->model().state(), TetrisModel::State::paused)
        << "the game stays in the model";
    EXPECT_EQ(machine_.mainLoop.timerCount(), 0u);
    EXPECT_EQ(keys_.observers(), 0u);
    machine_.clock.advance(30min);
    presenter_.setVisible(true);
    EXPECT_EQ(presenter_.face(), GamesPresenter::Locked);
    EXPECT_EQ(presenter_.timeText(), "Vuelve en 1h 30m");
}

TEST_F(GamesPresenterTest, TheGateIsRefreshedOnceASecondWhileVisible) {
    presenter_.setVisible(true);
    int refreshes = 0;
    const auto counting = gate_.changed.connect([&] { ++refreshes; });
    wait(10s);
    EXPECT_EQ(refreshes, 10);
    presenter_.setVisible(false);
    wait(10s);
    EXPECT_EQ(refreshes, 10);
}

TEST_F(GamesPresenterTest, LeavingAfterALostGameShowsTheLock) {
    loseTetris();
    EXPECT_EQ(presenter_.face(), GamesPresenter::Playing) << "the final board stays";
    presenter_.leave();
    EXPECT_EQ(presenter_.face(), GamesPresenter::Locked);
}

TEST_F(GamesPresenterTest, TheControlsDoWhatTheyShow) {
    random_.addPieces("IITT");
    play();
    auto& tetris = *presenter_.tetris();
    const auto& model = tetris.model();
    tetris.press(1);
    EXPECT_EQ(model.falling().column, 2);
    tetris.press(2);
    EXPECT_EQ(model.falling().rot, 1);
    tetris.press(3);
    EXPECT_EQ(model.falling().row, 1);
    tetris.press(4);
    EXPECT_EQ(model.falling().column, 3);
    tetris.press(0);
    EXPECT_EQ(model.state(), TetrisModel::State::paused);
    tetris.press(0);
    EXPECT_EQ(model.state(), TetrisModel::State::playing);
    tetris.press(5);
    tetris.press(-1);
    EXPECT_EQ(model.falling().column, 3);
}

TEST_F(GamesPresenterTest, TheControlsOfTheBrickGameDoWhatTheyShow) {
    presenter_.switchGame();
    play();
    auto& bricks = *presenter_.breakout();
    bricks.press(1);
    EXPECT_EQ(bricks.model().paddleX(), 61);
    bricks.press(3);
    EXPECT_EQ(bricks.model().paddleX(), 75);
    bricks.press(2);
    EXPECT_TRUE(bricks.model().launched());
}

TEST_F(GamesPresenterTest, AStepOfTheBrickGameAnnouncesTheBoardAlone) {
    presenter_.switchGame();
    play();
    auto& bricks = *presenter_.breakout();
    bricks.press(2);
    QSignalSpy board(&bricks, &BreakoutPresenter::boardChanged);
    QSignalSpy numbers(&bricks, &BreakoutPresenter::numbersChanged);
    QSignalSpy score(&bricks, &GamePresenter::scoreChanged);
    QSignalSpy controls(bricks.controls(), &QAbstractItemModel::dataChanged);
    wait(170ms);
    EXPECT_GE(board.count(), 10);
    EXPECT_EQ(numbers.count() + score.count() + controls.count(), 0);
}

}  // namespace
}  // namespace tidewatch
