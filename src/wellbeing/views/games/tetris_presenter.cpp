#include "wellbeing/views/games/tetris_presenter.h"

#include <array>
#include <utility>

namespace tidewatch {

TetrisPresenter::TetrisPresenter(const TetrisModel::Sources& sources, QObject* parent)
    : GamePresenter(
          {
              {"arrow.left", "Izquierda", [this] { model_.moveLeft(); }},
              {"arrow.up", "Girar", [this] { model_.rotate(); }},
              {"arrow.down", "Bajar", [this] { model_.softDrop(); }},
              {"arrow.right", "Derecha", [this] { model_.moveRight(); }},
          },
          parent),
      model_(sources) {
    follow(model_);
}

QString TetrisPresenter::nextAccessibleText() const {
    constexpr std::array letters{"", "I", "J", "L", "O", "S", "T", "Z"};
    if (nextPiece_ == 0) return {};
    return QString("Siguiente pieza: %1").arg(letters.at(static_cast<std::size_t>(nextPiece_)));
}

void TetrisPresenter::sync() {
    const int next = model_.nextPiece();
    if (std::exchange(nextPiece_, next) != next) Q_EMIT nextPieceChanged();
}

GameNumber TetrisPresenter::ownNumber() const {
    return gameNumber("LÍN", "Líneas", model_.lines());
}

}  // namespace tidewatch
