#include "wellbeing/views/games/game_field.h"

#include <QPainter>
#include <QQuickWindow>
#include <cmath>

#include "ui/backgrounds/pixel_picture.h"

namespace tidewatch {
namespace {

constexpr double groundRadius = 4;

}  // namespace

GameField::GameField(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

template <class Value>
void GameField::changeLook(Value& value, const Value& to) {
    if (value == to) return;
    value = to;
    update();
    Q_EMIT lookChanged();
}

void GameField::setPieceColors(const QList<QColor>& colors) {
    changeLook(pieceColors_, colors);
}

void GameField::setPlainColor(const QColor& color) {
    changeLook(plainColor_, color);
}

void GameField::setGround(const QColor& color) {
    changeLook(ground_, color);
}

void GameField::setEdge(const QColor& color) {
    changeLook(edge_, color);
}

void GameField::paint(QPainter* painter) {
    painter->setPen(Qt::NoPen);
    if (ground_.alpha() > 0) {
        painter->setBrush(ground_);
        painter->setPen(QPen(edge_, 1));
        painter->drawRoundedRect(QRectF(QPointF(), size()).adjusted(0.5, 0.5, -0.5, -0.5), groundRadius,
                                 groundRadius);
        painter->setPen(Qt::NoPen);
    }
    paintField(*painter, painter->hasClipping() ? painter->clipBoundingRect() : QRectF(QPointF(), size()));
}

QRectF GameField::onPixels(const QRectF& rect) const {
    const double ratio = window() != nullptr ? window()->effectiveDevicePixelRatio() : 1;
    const auto nearest = [ratio](double edge) { return std::round(edge * ratio) / ratio; };
    const QPointF topLeft(nearest(rect.left()), nearest(rect.top()));
    return {topLeft, QPointF(nearest(rect.right()), nearest(rect.bottom()))};
}

QColor GameField::colorAt(int index, const QColor& otherwise) const {
    return pieceColors_.isEmpty() ? otherwise : pieceColors_.at(index % pieceColors_.size());
}

void GameField::repaint(const QRectF& area) {
    update(area.adjusted(-1, -1, 1, 1).toAlignedRect());
}

void GameField::geometryChange(const QRectF& to, const QRectF& from) {
    QQuickPaintedItem::geometryChange(to, from);
    if (to.size() != from.size()) setPictureSize(*this);
}

void GameField::itemChange(ItemChange change, const ItemChangeData& data) {
    QQuickPaintedItem::itemChange(change, data);
    if (change == ItemSceneChange || change == ItemDevicePixelRatioHasChanged) setPictureSize(*this);
}

}  // namespace tidewatch
