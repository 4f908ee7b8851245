#pragma once

#include <chrono>
#include <cmath>
#include <cstdint>
#include <string_view>

#include "tests/support/fake_world.h"
#include "wellbeing/games/breakout_model.h"
#include "wellbeing/games/scripted_keys.h"
#include "wellbeing/games/scripted_randomness.h"

namespace tidewatch::test {

/// A brick game on a fake machine.
struct BreakoutWorld {
    BreakoutWorld() { random.thenAlways(1); }

    /// Presses keys: "<" and ">" are arrows, "_" is space.
    void press(std::string_view presses) {
        for (const char each : presses) {
            keys.press(each == '<' ? GameKey::left : each == '>' ? GameKey::right : GameKey::space);
        }
    }

    /// Starts a game whose balls start in these directions; later ones rightward.
    void play(std::string_view signs = "") {
        random.addSigns(signs);
        model.play();
    }

    /// Lets the time of this many steps pass. To be called first when the simulation starts.
    void step(int count = 1) {
        if (stepped_ == 0) start_ = machine.clock.monotonic();
        stepped_ += count;
        const auto wait = start_ + stepped_ * interval - machine.clock.monotonic();
        machine.mainLoop.runFor(std::chrono::ceil<std::chrono::milliseconds>(wait));
    }

    /// Plays until `done`: the paddle is always under the ball, and each bounce leaves at another angle, so
    /// that every brick is hit some time. Returns false if that takes too long.
    template <class Done>
    [[nodiscard]] bool playUntil(Done done) {
        for (int i = 0; i < 200'000 && !done(); ++i) {
            const double aside = 9 * std::sin(i * 0.37);
            if (!model.launched()) model.launch();
            model.setPaddle(model.ball().x + aside);
            step();
        }
        return done();
    }

    [[nodiscard]] bool playUntilLevel(int level) {
        return playUntil([&] { return model.level() == level; });
    }

    /// Loses balls until `done`: the paddle is always on the other side.
    template <class Done>
    [[nodiscard]] bool loseUntil(Done done) {
        for (int i = 0; i < 200'000 && !done(); ++i) {
            if (!model.launched()) model.launch();
            model.setPaddle(model.ball().x < 75 ? 130 : 20);
            step();
        }
        return done();
    }

    [[nodiscard]] int livingBricks() const {
        int living = 0;
        for (const auto& brick : model.bricks()) living += brick.alive ? 1 : 0;
        return living;
    }

    [[nodiscard]] double speed() const { return std::hypot(model.velocity().dx, model.velocity().dy); }

    FakeWorld machine;
    ScriptedKeys keys;
    ScriptedRandomness random;
    BreakoutModel model{{machine.mainLoop, machine.preferences, random, keys}};

private:
    static constexpr auto interval = std::chrono::nanoseconds(std::chrono::seconds(1)) / 60;
    std::chrono::nanoseconds start_{};
    std::int64_t stepped_ = 0;
};

}  // namespace tidewatch::test
