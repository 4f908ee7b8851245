#include "wellbeing/views/games/tetris_presenter.h"

#include <array>
#include <utility>

namespace tidewatch {
TetrisPresenter::TetrisPresenter(const TetrisModel::Sources& sources, QObject* parent)
    : GamePresenter(
          {
              {{"arrow.left", "Izquierda"}, [this] { model_.moveLeft(); }},
              {{"arrow.up", "Girar"}, [this] { model_.rotate(); }},
              {{"arrow.down", "Bajar"}, [this] { model_.softDrop(); }},
              {{"arrow.right", "Derecha"}, [this] { model_.moveRight(); }},
          },
          parent),
      model_(sources),
      changed_(model_.changed.connect([this] { sync(); })) {
    sync();
}

QString TetrisPresenter::nextAccessibleText() const {
    constexpr std::array letters{"", "I", "J", "L", "O", "S", "T", "Z"};
    if (nextPiece_ == 0) return {};
    return QString("Siguiente pieza: %1").arg(letters.at(static_cast<std::size_t>(nextPiece_)));
}

void TetrisPresenter::start() {
    model_.reset();
    model_.play();
}

void TetrisPresenter::sync() {
    Q_EMIT boardChanged();
    const int next = model_.nextPiece();
    if (std::exchange(nextPiece_, next) != next) Q_EMIT nextPieceChanged();
    const std::array numbers{
        std::pair{&lines_, gameNumber("LÍN", "Líneas", model_.lines())},
        std::pair{&level_, gameNumber("NVL", "Nivel", model_.level())},
        std::pair{&best_, gameNumber("TOP", "Récord", model_.best())},
    };
    bool changed = false;
    for (const auto& [shown, number] : numbers) changed |= std::exchange(*shown, number) != number;
    if (changed) Q_EMIT numbersChanged();
    show(box(), model_.score(), course());
}

GamePresenter::Course TetrisPresenter::course() const {
    using enum TetrisModel::State;
    if (model_.state() == playing) return Course::running;
    return model_.state() == over ? Course::over : Course::standing;
}

GamePresenter::Box TetrisPresenter::box() const {
    using enum TetrisModel::State;
    switch (model_.state()) {
        case over:
            return {"GAME OVER", QString("Puntaje %1").arg(model_.score()), "Tetris, partida terminada"};
        case paused:
            return {"PAUSA", "", "Tetris, en pausa"};
        case playing:
            return {"", "", "Tetris, en juego"};
        case idle:
            break;
    }
    return {"", "", "Tetris"};
}

}  // namespace tidewatch
