#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "wellbeing/games/breakout_world.h"
#include "wellbeing/games/tetris_world.h"

// Whole games from a script of draws and keys, with the outcome that golden/ has recorded. The records come
// from slow_games.py, which plays the same scripts by an implementation of its own.

namespace tidewatch {
namespace {

using test::BreakoutWorld;
using test::TetrisWorld;

struct Press {
    int wait;  ///< milliseconds, or steps
    char key;
};

struct Recording {
    std::string draws;
    std::vector<Press> presses;
    std::string outcome;
};

Recording recording(const std::string& name) {
    std::ifstream file(TIDEWATCH_GOLDEN_GAMES "/" + name);
    Recording result;
    std::string line;
    std::getline(file, line);
    result.draws = line.substr(std::string("draws ").size());
    std::getline(file, line);
    std::istringstream keys(line.substr(std::string("keys ").size()));
    Press press{};
    while (keys >> press.wait >> press.key) result.presses.push_back(press);
    std::ostringstream rest;
    rest << file.rdbuf();
    result.outcome = rest.str();
    return result;
}

/// Counts how often the game's own timer fires.
class CountingLoop final : public platform::MainLoop {
public:
    explicit CountingLoop(platform::MainLoop& loop) : loop_(loop) {}

    void post(Job job) override { loop_.post(std::move(job)); }
    [[nodiscard]] std::unique_ptr<platform::RepeatingTimer> repeat(std::chrono::nanoseconds interval,
                                                                   platform::TimerMode mode,
                                                                   Job fire) override {
        return loop_.repeat(interval, mode, [this, fire = std::move(fire)] {
            ++fired;
            fire();
        });
    }

    int fired = 0;

private:
    platform::MainLoop& loop_;
};

std::string playedTetris(const Recording& recording) {
    TetrisWorld world;
    CountingLoop loop(world.machine.mainLoop);
    TetrisModel model({loop, world.machine.preferences, world.random, world.keys});
    world.random.addPieces(recording.draws);
    model.play();
    for (const auto& [wait, key] : recording.presses) {
        world.machine.mainLoop.runFor(std::chrono::milliseconds(wait));
        world.press(std::string(1, key));
    }
    EXPECT_EQ(world.random.left(), 0u);
    std::ostringstream outcome;
    outcome << "state " << (model.state() == TetrisModel::State::over ? "over" : "playing") << "\n"
            << "score " << model.score() << "\n"
            << "lines " << model.lines() << "\n"
            << "level " << model.level() << "\n"
            << "ticks " << loop.fired << "\n"
            << "next " << TetrisWorld::letterOf(model.nextPiece()) << "\n";
    for (const auto& row : model.grid()) {
        for (const int cell : row) outcome << TetrisWorld::letterOf(cell);
        outcome << "\n";
    }
    return outcome.str();
}

std::string playedBricks(const Recording& recording) {
    BreakoutWorld world;
    CountingLoop loop(world.machine.mainLoop);
    BreakoutModel model({loop, world.machine.preferences, world.random, world.keys});
    world.random.addSigns(recording.draws);
    model.play();
    for (const auto& [wait, key] : recording.presses) {
        for (int i = 0; i < wait; ++i) world.step();
        world.press(std::string(1, key));
    }
    EXPECT_EQ(world.random.left(), 0u);
    std::ostringstream outcome;
    outcome.setf(std::ios::fixed);
    outcome << "state " << (model.state() == BreakoutModel::State::over ? "over" : "playing") << "\n"
            << "score " << model.score() << "\n"
            << "lives " << model.lives() << "\n"
            << "level " << model.level() << "\n"
            << "steps " << loop.fired << "\n";
    outcome.precision(1);
    outcome << "paddle " << model.paddleX() << "\n";
    outcome.precision(6);
    outcome << "ball " << model.ball().x << " " << model.ball().y << "\n";
    for (const auto& brick : model.bricks()) {
        outcome << (brick.alive ? '#' : '.');
        if (brick.id % breakout::brickColumns == breakout::brickColumns - 1) outcome << "\n";
    }
    return outcome.str();
}

class TetrisReplayTest : public testing::TestWithParam<const char*> {};

TEST_P(TetrisReplayTest, AScriptedGameEndsAsRecorded) {
    const auto script = recording(GetParam());
    ASSERT_FALSE(script.presses.empty());
    EXPECT_EQ(playedTetris(script), script.outcome);
}

INSTANTIATE_TEST_SUITE_P(Games, TetrisReplayTest,
                         testing::Values("tetris_random_keys.txt", "tetris_other_random_keys.txt",
                                         "tetris_to_level_three.txt"));

class BreakoutReplayTest : public testing::TestWithParam<const char*> {};

TEST_P(BreakoutReplayTest, AScriptedGameEndsAsRecorded) {
    const auto script = recording(GetParam());
    ASSERT_FALSE(script.presses.empty());
    EXPECT_EQ(playedBricks(script), script.outcome);
}

INSTANTIATE_TEST_SUITE_P(Games, BreakoutReplayTest,
                         testing::Values("bricks_lost_early.txt", "bricks_to_the_third_level.txt",
                                         "bricks_unfinished.txt"));

}  // namespace
}  // namespace tidewatch
