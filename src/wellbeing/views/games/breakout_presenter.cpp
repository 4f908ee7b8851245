#include "wellbeing/views/games/breakout_presenter.h"

#include <array>
#include <utility>

namespace tidewatch {
BreakoutPresenter::BreakoutPresenter(const BreakoutModel::Sources& sources, QObject* parent)
    : GamePresenter(
          {
              {{"arrow.left", "Izquierda"}, [this] { model_.moveLeft(); }},
              {{"arrow.up.to.line", "Lanzar"}, [this] { model_.launch(); }},
              {{"arrow.right", "Derecha"}, [this] { model_.moveRight(); }},
          },
          parent),
      model_(sources),
      changed_(model_.changed.connect([this] { sync(); })) {
    sync();
}

void BreakoutPresenter::start() {
    model_.reset();
    model_.play();
}

void BreakoutPresenter::sync() {
    Q_EMIT boardChanged();
    const Shown now{model_.state(), model_.launched(), model_.score(),
                    model_.lives(), model_.level(),    model_.best()};
    if (now == shown_) return;
    shown_ = now;
    const std::array numbers{
        std::pair{&lives_, gameNumber("VIDAS", "Vidas", model_.lives())},
        std::pair{&level_, gameNumber("NVL", "Nivel", model_.level())},
        std::pair{&best_, gameNumber("TOP", "Récord", model_.best())},
    };
    bool changed = false;
    for (const auto& [shown, number] : numbers) changed |= std::exchange(*shown, number) != number;
    if (changed) Q_EMIT numbersChanged();
    show(box(), model_.score(), course());
}

GamePresenter::Course BreakoutPresenter::course() const {
    using enum BreakoutModel::State;
    if (model_.state() == playing) return Course::running;
    return model_.state() == over ? Course::over : Course::standing;
}

GamePresenter::Box BreakoutPresenter::box() const {
    using enum BreakoutModel::State;
    switch (model_.state()) {
        case playing:
            if (model_.launched()) return {"", "", "Bricks, en juego"};
            return {"LISTO", "Toca ⤒ o espacio", "Bricks, la bola espera"};
        case paused:
            return {"PAUSA", "", "Bricks, en pausa"};
        case over:
            return {"GAME OVER", QString("Puntaje %1").arg(model_.score()), "Bricks, partida terminada"};
        case idle:
        case won:
            break;
    }
    return {"", "", "Bricks"};
}

}  // namespace tidewatch
