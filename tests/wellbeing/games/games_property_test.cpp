#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "wellbeing/games/breakout_world.h"
#include "wellbeing/games/tetris_world.h"

// A thousand games of each kind by random keys.

namespace tidewatch {
namespace {

using test::BreakoutWorld;
using test::TetrisWorld;

constexpr int games = 1000;

/// What is wrong with a state of the falling-blocks game; nullptr if nothing is. Not by assertions, which
/// would take most of the test's time.
const char* fault(const TetrisModel& model) {
    const auto isPiece = [](int piece) { return piece >= 1 && piece <= tetris::pieceCount; };
    for (const auto& row : model.grid()) {
        if (!std::ranges::all_of(row, [&](int cell) { return cell == 0 || isPiece(cell); }))
            return "no piece";
        if (std::ranges::find(row, 0) == row.end()) return "a full row was left";
    }
    if (!isPiece(model.falling().piece) || !isPiece(model.nextPiece())) return "no piece falls";
    if (model.level() != model.lines() / 10 + 1) return "wrong level";
    if (model.state() == TetrisModel::State::over) return nullptr;
    for (const auto& cells : {model.pieceCells(), model.ghostCells()}) {
        for (const auto& [row, column] : cells) {
            if (row < 0 || row >= tetris::rows || column < 0 || column >= tetris::columns) return "outside";
            const auto& settled = model.grid()[static_cast<std::size_t>(row)];
            if (settled[static_cast<std::size_t>(column)] != 0) return "the piece overlaps";
        }
    }
    return model.ghostRow() < model.falling().row ? "the ghost is above the piece" : nullptr;
}

/// What the brick game must keep from one state to the next.
struct BrickState {
    int living = 30;
    int level = 1;
    int lives = 3;
    std::int64_t score = 0;
    double speed = 0;
};

BrickState stateOf(const BreakoutWorld& world) {
    return {world.livingBricks(), world.model.level(), world.model.lives(), world.model.score(),
            world.speed()};
}

/// What is wrong with a state of the brick game after `before`; nullptr if nothing is.
const char* fault(const BreakoutModel& model, const BrickState& before, const BrickState& now) {
    if (now.score < before.score) return "the score fell";
    if (model.paddleX() < 20 || model.paddleX() > 130) return "the paddle is outside";
    if (model.state() == BreakoutModel::State::over) return nullptr;
    const auto ball = model.ball();
    if (ball.x < 4 || ball.x > 146 || ball.y < 4 || ball.y > 256) return "the ball is outside";
    if (!model.launched() && ball != breakout::Point{model.paddleX(), 231}) return "the ball waits elsewhere";
    if (now.level != before.level) return nullptr;
    if (now.living > before.living) return "a brick came back";
    if (now.living < before.living - 1) return "two bricks fell in one step";
    // No ball is slower than the paddle's minimum, so that no bounce changes the speed.
    if (now.lives == before.lives && std::abs(now.speed - before.speed) > 1e-9) return "the speed changed";
    return nullptr;
}

TEST(GamesPropertyTest, AThousandRandomTetrisGamesKeepTheInvariants) {
    std::mt19937 dice(12);
    TetrisWorld world;
    auto& model = world.model;
    for (int game = 0; game < games && !testing::Test::HasFatalFailure(); ++game) {
        // Draws that repeat make lines: a whole game of one piece, or of two.
        for (int i = 0; i < 400; ++i) world.random.add(dice() % static_cast<unsigned>(1 + game % 7));
        std::int64_t score = 0;
        const auto watching = model.changed.connect([&] {
            if (const auto* wrong = fault(model)) FAIL() << wrong;
            if (model.state() == TetrisModel::State::idle) score = 0;
            if (model.score() < score) FAIL() << "the score fell";
            score = model.score();
        });
        model.reset();
        model.play();
        for (int press = 0; press < 2000 && model.state() != TetrisModel::State::over; ++press) {
            switch (dice() % 16) {
                case 0:
                    model.togglePlayPause();
                    break;
                case 1:
                    world.fallOneRow();
                    break;
                case 2:
                    if (dice() % 8 == 0) model.stop();
                    break;
                default:
                    world.press(std::string(1, "<><><>v^_"[dice() % 9]));
            }
            if (model.state() == TetrisModel::State::paused && dice() % 2 == 0) model.play();
            if (testing::Test::HasFatalFailure()) return;
        }
        ASSERT_EQ(model.state(), TetrisModel::State::over) << "game " << game << " did not end";
        ASSERT_EQ(world.machine.mainLoop.timerCount(), 0u);
        ASSERT_EQ(world.keys.observers(), 0u);
        ASSERT_EQ(model.best(), world.storedBest());
        while (world.random.left() > 0) static_cast<void>(world.random.bits());
    }
}

TEST(GamesPropertyTest, AThousandRandomBrickGamesKeepTheInvariants) {
    std::mt19937 dice(34);
    BreakoutWorld world;
    auto& model = world.model;
    for (int game = 0; game < games && !testing::Test::HasFatalFailure(); ++game) {
        for (int i = 0; i < 8; ++i) world.random.add(dice());
        model.reset();
        model.play();
        auto before = stateOf(world);
        const auto watching = model.changed.connect([&] {
            const auto now = stateOf(world);
            if (const auto* wrong = fault(model, before, now)) FAIL() << wrong;
            before = now;
        });
        // Some players follow the ball, so that higher levels are reached.
        const bool skilled = game % 40 == 0;
        for (int i = 0; i < (skilled ? 4'000 : 150) && model.state() == BreakoutModel::State::playing; ++i) {
            if (skilled && i % 16 != 0) {
                model.setPaddle(model.ball().x + 8 * std::sin(i * 0.37));
            } else {
                world.press(std::string(1, "<>_"[dice() % 3]));
            }
            world.step(skilled ? 1 : static_cast<int>(dice() % 8));
            if (testing::Test::HasFatalFailure()) return;
        }
        model.stop();
        ASSERT_NE(model.state(), BreakoutModel::State::playing);
        ASSERT_EQ(world.machine.mainLoop.timerCount(), 0u);
        ASSERT_EQ(world.keys.observers(), 0u);
        ASSERT_EQ(model.best(), world.machine.preferences.integer("breakoutHighScore"));
        while (world.random.left() > 0) static_cast<void>(world.random.bits());
    }
}

}  // namespace
}  // namespace tidewatch
