#include "wellbeing/views/games/next_piece.h"

#include <QPainter>

namespace tidewatch {
namespace {

constexpr double previewStep = 8;
constexpr double previewSide = 6;
constexpr double previewRadius = 1.5;
// Unrotated, every piece fits into these.
constexpr int previewColumns = 4;
constexpr int previewRows = 2;

}  // namespace

NextPiece::NextPiece(QQuickItem* parent) : GameField(parent) {
    setLayoutSize({previewColumns * previewStep, previewRows * previewStep});
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
        const auto cell =
            onPixels(inItem({column * previewStep, row * previewStep, previewSide, previewSide}));
        painter.drawRoundedRect(cell, previewRadius * unit(), previewRadius * unit());
    }
}

}  // namespace tidewatch
