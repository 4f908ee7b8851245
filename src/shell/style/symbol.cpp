#include "shell/style/symbol.h"

#include <QPainter>
#include <cmath>

#include "shell/style/symbol_table.h"

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
    // Whole pixels: the drawing is copied to the screen as it is, not stretched.
    setImplicitSize(std::ceil(side), std::ceil(side));
    update();
    Q_EMIT sideChanged();
}

void Symbol::paint(QPainter* painter) {
    painter->translate((width() - side_) / 2, (height() - side_) / 2);
    painter->scale(side_, side_);
    painter->fillPath(shape_, color_);
}

}  // namespace tidewatch
