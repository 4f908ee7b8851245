#include "ui/symbols/symbol.h"

#include <QPainter>

#include "ui/backgrounds/pixel_picture.h"
#include "ui/symbols/symbol_table.h"

namespace tidewatch {

Symbol::Symbol(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

void Symbol::setName(const QString& name) {
    if (name == name_) return;
    name_ = name;
    shape_ = symbolShape(name).value_or(QPainterPath());
    update();
    Q_EMIT nameChanged();
}

void Symbol::setColor(const QColor& color) {
    if (color == color_) return;
    color_ = color;
    update();
    Q_EMIT colorChanged();
}

void Symbol::setSide(double side) {
    if (side == side_) return;
    side_ = side;
    setImplicitSize(side, side);
    setPictureSize(*this, {side, side});
    Q_EMIT sideChanged();
}

void Symbol::setTurn(double turn) {
    if (turn == turn_) return;
    turn_ = turn;
    update();
    Q_EMIT turnChanged();
}

void Symbol::geometryChange(const QRectF& to, const QRectF& from) {
    QQuickPaintedItem::geometryChange(to, from);
    setPictureSize(*this, {side_, side_});
}

void Symbol::paint(QPainter* painter) {
    painter->translate(width() / 2, height() / 2);
    painter->rotate(turn_);
    painter->scale(side_, side_);
    painter->translate(-0.5, -0.5);
    painter->fillPath(shape_, color_);
}

}  // namespace tidewatch
