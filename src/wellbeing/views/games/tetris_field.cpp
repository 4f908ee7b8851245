#include "wellbeing/views/games/tetris_field.h"

#include <QPainter>

#include "ui/style/contrast.h"

namespace tidewatch {
namespace {

constexpr double cellInset = 1;
constexpr double cellRadius = 2.5;
constexpr double ghostOpacity = 0.18;

// Between a mark and the sides of the cell's square, as parts of it.
constexpr double aroundDot = 1 / 3.0;
constexpr double besideBar = 1 / 4.0;
constexpr double aboveBar = 0.4;
constexpr float markOpacity = 0.35F;

auto& lookAt(auto& looks, const tetris::Cell& cell) {
    return looks.at(static_cast<std::size_t>(cell.row)).at(static_cast<std::size_t>(cell.column));
}

}  // namespace

TetrisField::TetrisField(QQuickItem* parent) : GameField(parent) {
    setLayoutSize({cell_ * tetris::columns, cell_ * tetris::rows});
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
    setLayoutSize({cell_ * tetris::columns, cell_ * tetris::rows});
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
    return inItem({column * cell_, row * cell_, cell_, cell_});
}

QRectF TetrisField::square(int row, int column) const {
    const double inset = cellInset * unit();
    return onPixels(place(row, column).adjusted(inset, inset, -inset, -inset));
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

void TetrisField::drawMark(QPainter& painter, PieceMark mark, const QRectF& cell, const QColor& color) const {
    if (mark == PieceMark::none) return;
    // Rounded margins keep it in the very middle.
    const auto inside = [&](double across, double down) {
        const auto margins = onPixels({0, 0, cell.width() * across, cell.height() * down}).size();
        return cell.adjusted(margins.width(), margins.height(), -margins.width(), -margins.height());
    };
    QColor tone = contrast(color, Qt::black) > contrast(color, Qt::white) ? Qt::black : Qt::white;
    tone.setAlphaF(markOpacity);
    painter.setBrush(tone);
    if (mark == PieceMark::dot) {
        painter.drawEllipse(inside(aroundDot, aroundDot));
    } else {
        painter.drawRect(inside(besideBar, aboveBar));
    }
}

void TetrisField::paintField(QPainter& painter, const QRectF& dirty) {
    for (int row = 0; row < tetris::rows; ++row) {
        for (int column = 0; column < tetris::columns; ++column) {
            const auto& [kind, piece] = lookAt(looks_, {row, column});
            if (kind == Kind::empty || !place(row, column).intersects(dirty)) continue;
            auto color = colorAt(piece - 1, plainColor());
            const auto cell = square(row, column);
            const auto mark =
                kind == Kind::solid ? pieceMarks.at(static_cast<std::size_t>(piece - 1)) : PieceMark::none;
            if (kind == Kind::ghost) color.setAlphaF(color.alphaF() * static_cast<float>(ghostOpacity));
            painter.setBrush(color);
            painter.drawRoundedRect(cell, cellRadius * unit(), cellRadius * unit());
            drawMark(painter, mark, cell, color);
        }
    }
}

}  // namespace tidewatch
