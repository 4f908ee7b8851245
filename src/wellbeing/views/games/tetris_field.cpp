#include "wellbeing/views/games/tetris_field.h"

#include <QPainter>

namespace tidewatch {
namespace {

constexpr double cellInset = 1;
constexpr double cellRadius = 2.5;
constexpr double ghostOpacity = 0.18;

auto& lookAt(auto& looks, const tetris::Cell& cell) {
    return looks.at(static_cast<std::size_t>(cell.row)).at(static_cast<std::size_t>(cell.column));
}

}  // namespace

TetrisField::TetrisField(QQuickItem* parent) : GameField(parent) {
    setImplicitSize(cell_ * tetris::columns, cell_ * tetris::rows);
}

void TetrisField::setPresenter(TetrisPresenter* presenter) {
    if (presenter == presenter_) return;
    if (presenter_) presenter_->disconnect(this);
    presenter_ = presenter;
    if (presenter_) connect(presenter_, &TetrisPresenter::boardChanged, this, &TetrisField::sync);
    sync();
    Q_EMIT presenterChanged();
}

void TetrisField::setCell(double cell) {
    if (cell == cell_) return;
    cell_ = cell;
    setImplicitSize(cell_ * tetris::columns, cell_ * tetris::rows);
    update();
    Q_EMIT cellChanged();
}

TetrisField::Looks TetrisField::looksOf(const TetrisModel& model) const {
    Looks looks{};
    const int falling = model.falling().piece;
    for (const auto& cell : model.ghostCells()) lookAt(looks, cell) = {Kind::ghost, falling};
    for (int row = 0; row < tetris::rows; ++row) {
        for (int column = 0; column < tetris::columns; ++column) {
            const int settled = lookAt(model.grid(), {row, column});
            if (settled != 0) lookAt(looks, {row, column}) = {Kind::solid, settled};
        }
    }
    for (const auto& cell : model.pieceCells()) lookAt(looks, cell) = {Kind::solid, falling};
    return looks;
}

QRectF TetrisField::place(int row, int column) const {
    return onPixels({column * cell_, row * cell_, cell_, cell_});
}

void TetrisField::sync() {
    const auto looks = presenter_ ? looksOf(presenter_->model()) : Looks{};
    QRectF changed;
    for (int row = 0; row < tetris::rows; ++row) {
        for (int column = 0; column < tetris::columns; ++column) {
            const tetris::Cell cell{row, column};
            if (lookAt(looks, cell) != lookAt(looks_, cell)) changed |= place(row, column);
        }
    }
    looks_ = looks;
    if (!changed.isEmpty()) repaint(changed);
}

void TetrisField::paintField(QPainter& painter, const QRectF& dirty) {
    for (int row = 0; row < tetris::rows; ++row) {
        for (int column = 0; column < tetris::columns; ++column) {
            const auto& [kind, piece] = lookAt(looks_, {row, column});
            const auto cell = place(row, column);
            if (kind == Kind::empty || !cell.intersects(dirty)) continue;
            auto color = colorAt(piece - 1, plainColor());
            if (kind == Kind::ghost) color.setAlphaF(color.alphaF() * static_cast<float>(ghostOpacity));
            painter.setBrush(color);
            painter.drawRoundedRect(cell.adjusted(cellInset, cellInset, -cellInset, -cellInset), cellRadius,
                                    cellRadius);
        }
    }
}

}  // namespace tidewatch
