// One step of either game, through the timer that drives it.

#include <cstdlib>
#include <memory>
#include <utility>

#include "bench/support/ratio.h"
#include "platform/fake/fake_clock.h"
#include "platform/fake/fake_main_loop.h"
#include "platform/fake/fake_randomness.h"
#include "platform/fake/memory_preferences.h"
#include "wellbeing/games/breakout_model.h"
#include "wellbeing/games/tetris_model.h"

namespace {

using namespace tidewatch;
using namespace tidewatch::bench;
using namespace std::chrono_literals;

constexpr double maxMillisecondsPerStep = 0.005;

/// A keyboard that nobody touches.
class NoKeys final : public KeyMonitor {
public:
    [[nodiscard]] std::unique_ptr<KeyObservation> observe(Handler) override { return nullptr; }
};

/// A main loop whose only timer fires when the benchmark says.
class OneTimer final : public platform::MainLoop {
public:
    void post(Job job) override { job(); }
    [[nodiscard]] std::unique_ptr<platform::RepeatingTimer> repeat(std::chrono::nanoseconds,
                                                                   platform::TimerMode, Job fire) override {
        fire_ = std::move(fire);
        return std::make_unique<platform::RepeatingTimer>();
    }
    void fire(int times) {
        for (int i = 0; i < times; ++i) {
            const auto fire = fire_;  // the next level replaces it
            fire();
        }
    }

private:
    Job fire_;
};

struct Arcade {
    OneTimer loop;
    platform::MemoryPreferences preferences;
    platform::FakeRandomness randomness;
    NoKeys keys;
};

void bricks(Verdicts& verdicts) {
    Arcade arcade;
    BreakoutModel model({arcade.loop, arcade.preferences, arcade.randomness, arcade.keys});
    model.play();
    model.launch();
    constexpr int steps = 100;
    // The ball is in the air all the time: the paddle follows it.
    verdicts.computation(
        "100 steps of the brick game",
        [&] {
            for (int i = 0; i < steps; ++i) {
                model.setPaddle(model.ball().x + 5);
                model.launch();
                arcade.loop.fire(1);
            }
        },
        steps * maxMillisecondsPerStep);
    if (model.state() != BreakoutModel::State::playing || model.ball().y > 231) std::exit(2);
}

void fallingBlocks(Verdicts& verdicts) {
    Arcade arcade;
    TetrisModel model({arcade.loop, arcade.preferences, arcade.randomness, arcade.keys});
    constexpr int steps = 60;
    // A game of these pieces is over before 100.
    verdicts.computation(
        "60 falls of the falling-blocks game",
        [&] {
            model.reset();
            model.play();
            arcade.loop.fire(steps);
        },
        steps * maxMillisecondsPerStep);
    if (model.state() != TetrisModel::State::playing || model.grid() == tetris::Grid{}) std::exit(2);
}

}  // namespace

int main() {
    Verdicts verdicts;
    bricks(verdicts);
    fallingBlocks(verdicts);
    return verdicts.exitCode();
}
