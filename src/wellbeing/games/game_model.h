#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>

#include "base/signal.h"
#include "platform/api/main_loop.h"
#include "platform/api/preferences.h"
#include "platform/api/randomness.h"
#include "wellbeing/games/high_score.h"
#include "wellbeing/games/key_monitor.h"

namespace tidewatch {

/// What the games have in common: the way from start to end, timer and keys, score and high score. Knows
/// nothing of the game gate: whoever owns it decides when a game may begin. Main thread only.
class GameModel {
public:
    enum class State { idle, playing, paused, over, won /** not used */ };

    /// All of it must outlive the model.
    struct Sources {
        platform::MainLoop& mainLoop;
        platform::Preferences& preferences;
        platform::Randomness& randomness;
        KeyMonitor& keys;
    };

    virtual ~GameModel() = default;
    GameModel(const GameModel&) = delete;
    GameModel& operator=(const GameModel&) = delete;

    /// Starts a game, or continues a paused one: from then on it takes its steps and the keys steer it.
    /// Ignored while playing.
    void play();

    /// Ignored unless playing. The keys stay observed, without effect.
    void pause();
    void togglePlayPause();

    /// Prepares a new game without starting it. An unfinished game's score is lost.
    void reset();

    /// Ends the timer and the observation of the keys; a running game is paused.
    void stop();

    [[nodiscard]] State state() const { return state_; }
    [[nodiscard]] std::int64_t score() const { return score_; }
    /// From 1.
    [[nodiscard]] int level() const { return level_; }
    [[nodiscard]] std::int64_t best() const { return best_.best(); }

    /// Emitted at the end of every operation that changed something, and of every step.
    Signal<> changed;

protected:
    /// The high score is stored under this key at the end of a game.
    GameModel(const Sources& sources, std::string highScoreKey);

    /// Sets up a new game, of level 1 and without points.
    virtual void setUp() = 0;

    /// The time from one step to the next; asked whenever the timer starts.
    [[nodiscard]] virtual std::chrono::nanoseconds stepInterval() const = 0;

    /// Called only while playing.
    virtual void step() = 0;
    [[nodiscard]] virtual KeyPress press(GameKey key) = 0;

    [[nodiscard]] bool isPlaying() const { return state_ == State::playing; }
    void earn(std::int64_t points) { score_ += points; }
    void setLevel(int level) { level_ = level; }
    void restartTimer();
    void endGame();

    /// A number from 0 to `count` - 1 by chance.
    [[nodiscard]] int draw(int count);

private:
    void newGame();

    platform::MainLoop& mainLoop_;
    platform::Randomness& randomness_;
    KeyMonitor& keys_;

    State state_ = State::idle;
    std::int64_t score_ = 0;
    int level_ = 1;
    HighScore best_;
    std::unique_ptr<platform::RepeatingTimer> timer_;
    std::unique_ptr<KeyObservation> keyObservation_;
};

}  // namespace tidewatch
