#include "wellbeing/views/games/game_presenter.h"

#include <utility>

namespace tidewatch {

GamePresenter::GamePresenter(std::vector<Steering> steering, QObject* parent)
    : QObject(parent), steering_(std::move(steering)) {}

void GamePresenter::follow(GameModel& game) {
    game_ = &game;
    changed_ = game.changed.connect([this] { show(); });
    show();
}

void GamePresenter::press(int control) {
    if (control == 0) {
        game_->togglePlayPause();
    } else if (control > 0 && control <= static_cast<int>(steering_.size())) {
        steering_[static_cast<std::size_t>(control - 1)].act();
    }
}

void GamePresenter::start() {
    game_->reset();
    game_->play();
}

void GamePresenter::stop() {
    game_->stop();
}

void GamePresenter::show() {
    Q_EMIT boardChanged();
    sync();
    if (const auto now = box(); std::exchange(box_, now) != now) Q_EMIT overlayChanged();
    const auto digits = QString::number(game_->score());
    if (std::exchange(score_, digits) != digits) Q_EMIT scoreChanged();
    const Numbers numbers{
        ownNumber(),
        gameNumber("NVL", "Nivel", game_->level()),
        gameNumber("TOP", "Récord", game_->best()),
    };
    if (std::exchange(numbers_, numbers) != numbers) Q_EMIT numbersChanged();
    const bool over = game_->state() == GameModel::State::over;
    if (std::exchange(over_, over) != over) Q_EMIT overChanged();
    controls_.setRows(controlsNow());
}

GamePresenter::Box GamePresenter::box() const {
    using enum GameModel::State;
    switch (game_->state()) {
        case playing:
            return boxWhilePlaying();
        case paused:
            return {"PAUSA", "", name() + ", en pausa"};
        case over:
            return {"GAME OVER", QString("Puntaje %1").arg(game_->score()), name() + ", partida terminada"};
        case idle:
        case won:
            break;
    }
    return {"", "", name()};
}

GamePresenter::Box GamePresenter::boxWhilePlaying() const {
    return {"", "", name() + ", en juego"};
}

std::vector<GameControl> GamePresenter::controlsNow() const {
    const bool running = game_->state() == GameModel::State::playing;
    std::vector<GameControl> controls{running ? GameControl{0, "pause.fill", "Pausa"}
                                              : GameControl{0, "play.fill", "Continuar"}};
    for (const auto& [symbol, name, act] : steering_)
        controls.push_back({static_cast<int>(controls.size()), symbol, name});
    return controls;
}

}  // namespace tidewatch
