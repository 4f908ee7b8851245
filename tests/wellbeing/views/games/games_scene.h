#pragma once

#include <string>
#include <string_view>

#include "tests/support/fake_world.h"
#include "ui/ui_scene.h"
#include "wellbeing/game_gate.h"
#include "wellbeing/games/scripted_keys.h"
#include "wellbeing/games/scripted_randomness.h"
#include "wellbeing/recording_notifier.h"
#include "wellbeing/views/games/games_presenter.h"

namespace tidewatch {

/// A mini-arcade on a fake machine. The first game is free, as in a new installation.
class GamesWorld {
public:
    /// Spends the free game, ends the lock, and charges this many seconds.
    void charge(int seconds);

    /// Appears and starts the chosen game.
    void play();

    /// Presses keys: "<", ">", "v" and "^" are the arrows, "_" is space, "p" is P.
    void pressKeys(std::string_view presses);

    /// A game of Tetris with some pieces on the board.
    void playSomeTetris();
    /// Drops pieces until the game is over.
    void loseTetris();
    /// A brick game with some bricks gone and the ball in the air.
    void playSomeBricks();
    void loseBricks();

    void wait(std::chrono::milliseconds duration) { machine_.mainLoop.runFor(duration); }

    test::FakeWorld machine_;
    test::RecordingNotifier notifier_;
    test::ScriptedKeys keys_;
    test::ScriptedRandomness random_;
    GameGate gate_{machine_.clock, machine_.preferences, notifier_};
    GamesPresenter presenter_{{machine_.mainLoop, machine_.preferences, random_, keys_, gate_}};
};

/// The panel in a window, in any theme.
class GamesScene : public GamesWorld, public UiScene {
public:
    ~GamesScene() override;

    /// Recreates the window.
    void showPanel(QSize size = {214, 374});
};

}  // namespace tidewatch
