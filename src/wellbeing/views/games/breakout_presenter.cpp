#include "wellbeing/views/games/breakout_presenter.h"

namespace tidewatch {

BreakoutPresenter::BreakoutPresenter(const BreakoutModel::Sources& sources, QObject* parent)
    : GamePresenter(
          {
              {"arrow.left", "Izquierda", [this] { model_.moveLeft(); }},
              {"arrow.up.to.line", "Lanzar", [this] { model_.launch(); }},
              {"arrow.right", "Derecha", [this] { model_.moveRight(); }},
          },
          parent),
      model_(sources) {
    follow(model_);
}

GamePresenter::Box BreakoutPresenter::boxWhilePlaying() const {
    if (model_.launched()) return GamePresenter::boxWhilePlaying();
    return {"LISTO", "Toca ⤒ o espacio", name() + ", la bola espera"};
}

GameNumber BreakoutPresenter::ownNumber() const {
    return gameNumber("VIDAS", "Vidas", model_.lives());
}

}  // namespace tidewatch
