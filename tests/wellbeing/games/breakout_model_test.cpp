#include "wellbeing/games/breakout_model.h"

#include <gtest/gtest.h>

#include "wellbeing/games/breakout_world.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;
using breakout::Point;
using breakout::Vector;

struct BreakoutModelTest : testing::Test, test::BreakoutWorld {
    using State = BreakoutModel::State;

    [[nodiscard]] std::int64_t storedBest() const { return machine.preferences.integer("breakoutHighScore"); }
    [[nodiscard]] auto isOver() {
        return [this] { return model.state() == State::over; };
    }
};

TEST_F(BreakoutModelTest, StartsIdleWithoutAWall) {
    machine.preferences.setInteger("breakoutHighScore", 777);
    const BreakoutModel other({machine.mainLoop, machine.preferences, random, keys});
    EXPECT_EQ(other.state(), State::idle);
    EXPECT_EQ(other.score(), 0);
    EXPECT_EQ(other.lives(), 3);
    EXPECT_EQ(other.level(), 1);
    EXPECT_EQ(other.best(), 777);
    EXPECT_TRUE(other.bricks().empty());
    EXPECT_EQ(other.paddleX(), 75);
    EXPECT_EQ(other.ball(), (Point{75, 222}));
    EXPECT_EQ(other.velocity(), Vector{});
    EXPECT_FALSE(other.launched());
    EXPECT_EQ(machine.mainLoop.timerCount(), 0u);
    EXPECT_EQ(keys.observers(), 0u);
}

TEST_F(BreakoutModelTest, AGameStartsWithTheBallOnThePaddle) {
    play();
    EXPECT_EQ(model.state(), State::playing);
    EXPECT_EQ(livingBricks(), 30);
    EXPECT_EQ(model.ball(), (Point{75, 231}));
    EXPECT_FALSE(model.launched());
    EXPECT_EQ(machine.mainLoop.timerCount(), 1u);
    EXPECT_EQ(keys.observers(), 1u);
    step(100);
    EXPECT_EQ(model.ball(), (Point{75, 231})) << "until it is launched";
}

TEST_F(BreakoutModelTest, TheLaunchHasTwoSigns) {
    play("+");
    EXPECT_EQ(model.velocity(), (Vector{0.4, -2.8}));
    model.reset();
    random.addSigns("-");
    model.play();
    EXPECT_EQ(model.velocity(), (Vector{-0.4, -2.8}));
}

TEST_F(BreakoutModelTest, TheLaunchedBallTakesSixtyStepsASecond) {
    play("-");
    press("_");
    EXPECT_TRUE(model.launched());
    EXPECT_EQ(model.ball(), (Point{75, 231})) << "it leaves with the next step";
    machine.mainLoop.runFor(500ms);
    EXPECT_NEAR(model.ball().x, 75 - 30 * 0.4, 1e-9);
    EXPECT_NEAR(model.ball().y, 231 - 30 * 2.8, 1e-9);
}

TEST_F(BreakoutModelTest, LaunchOutsidePlayingIsIgnored) {
    model.launch();
    EXPECT_FALSE(model.launched());
    play();
    model.pause();
    model.launch();
    EXPECT_FALSE(model.launched());
}

TEST_F(BreakoutModelTest, ThePaddleMovesInStepsBetweenItsBounds) {
    play();
    press("<");
    EXPECT_EQ(model.paddleX(), 61);
    press(">>");
    EXPECT_EQ(model.paddleX(), 89);
    press(">>>>>>");
    EXPECT_EQ(model.paddleX(), 130);
    press("<<<<<<<<<<");
    EXPECT_EQ(model.paddleX(), 20);
    model.moveRight();
    model.moveLeft();
    EXPECT_EQ(model.paddleX(), 20);
}

TEST_F(BreakoutModelTest, ThePaddleFollowsADragAtOnceWithinItsBounds) {
    play();
    model.setPaddle(99.5);
    EXPECT_EQ(model.paddleX(), 99.5);
    model.setPaddle(-5);
    EXPECT_EQ(model.paddleX(), 20);
    model.setPaddle(1000);
    EXPECT_EQ(model.paddleX(), 130);
    model.movePaddle(-0.5);
    EXPECT_EQ(model.paddleX(), 129.5);
}

TEST_F(BreakoutModelTest, TheBallFollowsThePaddleUntilItIsLaunched) {
    play();
    model.setPaddle(40);
    EXPECT_EQ(model.ball(), (Point{40, 231}));
    model.launch();
    model.setPaddle(100);
    EXPECT_EQ(model.ball(), (Point{40, 231}));
}

TEST_F(BreakoutModelTest, TheBoundsTakeNoAccountOfTheLevel) {
    play();
    ASSERT_TRUE(playUntilLevel(2));
    model.setPaddle(0);
    EXPECT_EQ(model.paddleX(), 20);
    model.setPaddle(150);
    EXPECT_EQ(model.paddleX(), 130);
}

TEST_F(BreakoutModelTest, ABrickEarnsTenPoints) {
    play();
    ASSERT_TRUE(playUntil([&] { return livingBricks() == 27; }));
    EXPECT_EQ(model.score(), 30);
}

TEST_F(BreakoutModelTest, ALostBallCostsALifeAndTheNextOneWaitsOnThePaddle) {
    play("+-");
    ASSERT_TRUE(playUntil([&] { return livingBricks() < 28; }));
    const auto score = model.score();
    const int bricks = livingBricks();
    ASSERT_TRUE(loseUntil([&] { return model.lives() == 2; }));
    EXPECT_EQ(model.state(), State::playing);
    EXPECT_FALSE(model.launched());
    EXPECT_EQ(model.ball(), (Point{model.paddleX(), 231}));
    EXPECT_EQ(model.velocity(), (Vector{-0.4, -2.8}));
    EXPECT_GE(model.score(), score) << "the score is never reduced";
    EXPECT_LE(livingBricks(), bricks);
    EXPECT_EQ(model.score(), 10 * (30 - livingBricks()));
    EXPECT_EQ(machine.mainLoop.timerCount(), 1u);
}

TEST_F(BreakoutModelTest, TheBallIsLostWhenItsCentreHasPassed256) {
    play();
    double lowest = 0;
    ASSERT_TRUE(loseUntil([&] {
        if (model.lives() == 3) lowest = model.launched() ? model.ball().y : lowest;
        return model.lives() == 2;
    }));
    EXPECT_LE(lowest, 256);
    EXPECT_GT(lowest + speed() + 0.1, 256);
}

TEST_F(BreakoutModelTest, TheGameIsOverWithTheLastLife) {
    play();
    ASSERT_TRUE(playUntil([&] { return livingBricks() == 29; }));
    ASSERT_TRUE(loseUntil(isOver()));
    EXPECT_EQ(model.lives(), 0);
    EXPECT_GT(model.ball().y, 256) << "the last ball does not come back";
    EXPECT_EQ(machine.mainLoop.timerCount(), 0u);
    EXPECT_EQ(keys.observers(), 0u);
    EXPECT_EQ(storedBest(), model.score());
    EXPECT_EQ(model.best(), model.score());
}

TEST_F(BreakoutModelTest, AScoreThatIsNotBetterIsNotStored) {
    machine.preferences.setInteger("breakoutHighScore", 1'000'000);
    BreakoutModel other({machine.mainLoop, machine.preferences, random, keys});
    machine.preferences.setInteger("breakoutHighScore", -1);
    other.play();
    for (int i = 0; i < 10'000 && other.state() == State::playing; ++i) {
        other.launch();
        other.setPaddle(other.ball().x < 75 ? 130 : 20);
        machine.mainLoop.runFor(17ms);
    }
    ASSERT_EQ(other.state(), State::over);
    EXPECT_EQ(storedBest(), -1);
    EXPECT_EQ(other.best(), 1'000'000);
}

TEST_F(BreakoutModelTest, NoHighScoreIsStoredBeforeTheGameIsOver) {
    play();
    ASSERT_TRUE(playUntil([&] { return livingBricks() == 27; }));
    model.stop();
    model.reset();
    EXPECT_FALSE(machine.preferences.contains("breakoutHighScore"));
    EXPECT_EQ(model.best(), 0);
}

TEST_F(BreakoutModelTest, ClearingLevel1Gives350Points) {
    play();
    ASSERT_TRUE(playUntilLevel(2));
    EXPECT_EQ(model.score(), 30 * 10 + 50);
    EXPECT_EQ(livingBricks(), 30);
    EXPECT_FALSE(model.launched());
    EXPECT_EQ(model.ball(), (Point{model.paddleX(), 231}));
    EXPECT_EQ(std::abs(model.velocity().dx), 0.4) << "the sideways part does not grow with the level";
    EXPECT_EQ(model.velocity().dy, -5.0);
    EXPECT_EQ(model.state(), State::playing);
}

TEST_F(BreakoutModelTest, EachLevelStartsFaster) {
    play();
    ASSERT_TRUE(playUntilLevel(3));
    EXPECT_EQ(model.velocity().dy, -7.8);
    EXPECT_EQ(model.score(), 700);
}

TEST_F(BreakoutModelTest, SpaceAndTheSidewaysArrowsAreConsumedWhilePlaying) {
    play();
    for (const auto key : {GameKey::left, GameKey::right, GameKey::space}) {
        EXPECT_EQ(keys.press(key), KeyPress::consumed);
    }
    for (const auto key : {GameKey::up, GameKey::down, GameKey::p}) {
        EXPECT_EQ(keys.press(key), KeyPress::passedOn);
    }
    EXPECT_EQ(model.state(), State::playing) << "there is no pause key";
}

TEST_F(BreakoutModelTest, TheUpArrowDoesNotLaunch) {
    play();
    keys.press(GameKey::up);
    EXPECT_FALSE(model.launched());
}

TEST_F(BreakoutModelTest, KeysPassOnOutsidePlaying) {
    play();
    model.pause();
    EXPECT_EQ(keys.observers(), 1u);
    for (const auto key : {GameKey::left, GameKey::right, GameKey::space}) {
        EXPECT_EQ(keys.press(key), KeyPress::passedOn);
    }
    EXPECT_EQ(model.paddleX(), 75);
    EXPECT_FALSE(model.launched());
}

TEST_F(BreakoutModelTest, APausedGameStandsStillAndContinues) {
    play();
    model.launch();
    step(10);
    const auto ball = model.ball();
    model.togglePlayPause();
    EXPECT_EQ(model.state(), State::paused);
    EXPECT_EQ(machine.mainLoop.timerCount(), 0u);
    machine.mainLoop.runFor(1min);
    EXPECT_EQ(model.ball(), ball);
    model.togglePlayPause();
    EXPECT_EQ(model.state(), State::playing);
    machine.mainLoop.runFor(17ms);
    EXPECT_NEAR(model.ball().y, ball.y - 2.8, 1e-9);
    EXPECT_EQ(keys.observers(), 1u);
}

TEST_F(BreakoutModelTest, PauseOutsidePlayingIsIgnored) {
    model.pause();
    EXPECT_EQ(model.state(), State::idle);
}

TEST_F(BreakoutModelTest, PlayWhilePlayingChangesNothing) {
    play();
    press("_");
    step(10);
    int changes = 0;
    const auto counting = model.changed.connect([&] { ++changes; });
    model.play();
    EXPECT_EQ(changes, 0);
    EXPECT_TRUE(model.launched());
    EXPECT_EQ(keys.observers(), 1u);
}

TEST_F(BreakoutModelTest, ResetPutsUpAFreshWallWithoutStarting) {
    play();
    ASSERT_TRUE(playUntil([&] { return livingBricks() == 27; }));
    model.setPaddle(33);
    model.reset();
    EXPECT_EQ(model.state(), State::idle);
    EXPECT_EQ(livingBricks(), 30);
    EXPECT_EQ(model.score(), 0);
    EXPECT_EQ(model.paddleX(), 33) << "the paddle stays where it is";
    EXPECT_EQ(model.ball(), (Point{33, 231}));
    EXPECT_EQ(machine.mainLoop.timerCount(), 0u);
    EXPECT_EQ(keys.observers(), 1u);
}

TEST_F(BreakoutModelTest, StopPausesAndLetsGoOfTimerAndKeys) {
    play();
    model.stop();
    EXPECT_EQ(model.state(), State::paused);
    EXPECT_EQ(machine.mainLoop.timerCount(), 0u);
    EXPECT_EQ(keys.observers(), 0u);
    model.play();
    EXPECT_EQ(keys.observers(), 1u);
}

TEST_F(BreakoutModelTest, AfterALostGameANewOneStarts) {
    play();
    ASSERT_TRUE(playUntilLevel(2));
    ASSERT_TRUE(loseUntil(isOver()));
    model.play();
    EXPECT_EQ(model.state(), State::playing);
    EXPECT_EQ(model.lives(), 3);
    EXPECT_EQ(model.level(), 1);
    EXPECT_EQ(model.score(), 0);
    EXPECT_EQ(livingBricks(), 30);
    EXPECT_EQ(model.velocity().dy, -2.8);
}

TEST_F(BreakoutModelTest, WonNeverAppears) {
    bool won = false;
    const auto watching = model.changed.connect([&] { won |= model.state() == State::won; });
    play();
    ASSERT_TRUE(playUntilLevel(4));
    ASSERT_TRUE(loseUntil(isOver()));
    EXPECT_FALSE(won);
}

TEST_F(BreakoutModelTest, TimerAndKeysEndWithTheModel) {
    {
        BreakoutModel other({machine.mainLoop, machine.preferences, random, keys});
        other.play();
        EXPECT_EQ(machine.mainLoop.timerCount(), 1u);
    }
    EXPECT_EQ(machine.mainLoop.timerCount(), 0u);
    EXPECT_EQ(keys.press(GameKey::left), KeyPress::passedOn);
    machine.mainLoop.runFor(1s);
}

TEST_F(BreakoutModelTest, EveryStepIsAnnouncedAlsoBeforeTheLaunch) {
    play();
    int changes = 0;
    const auto counting = model.changed.connect([&] { ++changes; });
    step(5);
    EXPECT_EQ(changes, 5);
    press("_");
    EXPECT_EQ(changes, 6);
    step(5);
    EXPECT_EQ(changes, 11);
}

TEST_F(BreakoutModelTest, ItRunsWhileAMenuIsOpen) {
    play();
    press("_");
    machine.mainLoop.setMenu(platform::FakeMainLoop::Menu::open);
    step(5);
    EXPECT_LT(model.ball().y, 231);
}

}  // namespace
}  // namespace tidewatch
