#include "wellbeing/views/games/next_piece.h"

#include <QPainter>

namespace tidewatch {
namespace {

constexpr double step = 8;
constexpr double side = 6;
constexpr double cornerRadius = 1.5;
// Unrotated, every piece fits into these.
constexpr int columns = 4;
constexpr int rows = 2;

}  // namespace

NextPiece::NextPiece(QQuickItem* parent) : GameField(parent) {
    setImplicitSize(columns * step, rows * step);
}

void NextPiece::setPresenter(TetrisPresenter* presenter) {
    if (presenter == presenter_) return;
    if (presenter_) presenter_->disconnect(this);
    presenter_ = presenter;
    if (presenter_) connect(presenter_, &TetrisPresenter::nextPieceChanged, this, [this] { update(); });
    update();
    Q_EMIT presenterChanged();
}

void NextPiece::paintField(QPainter& painter, const QRectF& /*dirty*/) {
    const int piece = presenter_ ? presenter_->model().nextPiece() : 0;
    if (piece == 0) return;
    painter.setBrush(colorAt(piece - 1, plainColor()));
    for (const auto& [row, column] : tetris::cellsOf({piece, 0, 0, 0})) {
        const auto cell = onPixels({column * step, row * step, side, side});
        painter.drawRoundedRect(cell, cornerRadius, cornerRadius);
    }
}

}  // namespace tidewatch
