#include "wellbeing/views/games/game_field.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGTransformNode>
#include <algorithm>
#include <cmath>

namespace tidewatch {
namespace {

constexpr double groundRadius = 4;

/// The least number of points that is a whole number of screen pixels; 0 if it is more than a few. What is
/// repainted must not end within a pixel, which would keep a part of what was there.
int pointsOfWholePixels(double ratio) {
    constexpr int most = 8;
    for (int points = 1; points <= most; ++points) {
        const double pixels = points * ratio;
        if (std::abs(pixels - std::round(pixels)) < 1e-6) return points;
    }
    return 0;
}

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

void GameField::setUnit(double unit) {
    if (unit == unit_) return;
    unit_ = unit;
    setLayoutSize(layoutSize_);
    Q_EMIT unitChanged();
}

void GameField::paint(QPainter* painter) {
    painter->setPen(Qt::NoPen);
    if (ground_.alpha() > 0) {
        const auto line = onPixels({0, 0, 1, 1}).width();
        painter->setBrush(ground_);
        painter->setPen(QPen(edge_, line));
        painter->drawRoundedRect(
            QRectF(QPointF(), drawingSize()).adjusted(line / 2, line / 2, -line / 2, -line / 2),
            groundRadius * unit_, groundRadius * unit_);
        painter->setPen(Qt::NoPen);
    }
    paintField(*painter, painter->hasClipping() ? painter->clipBoundingRect() : QRectF(QPointF(), size()));
}

double GameField::pixelRatio() const {
    return window() != nullptr ? window()->effectiveDevicePixelRatio() : 1;
}

QRectF GameField::onPixels(const QRectF& rect) const {
    const auto nearest = [ratio = pixelRatio()](double length) { return std::round(length * ratio) / ratio; };
    return {nearest(rect.x()), nearest(rect.y()), nearest(rect.width()), nearest(rect.height())};
}

QColor GameField::colorAt(int index, const QColor& otherwise) const {
    return pieceColors_.isEmpty() ? otherwise : pieceColors_.at(index % pieceColors_.size());
}

void GameField::repaint(const QRectF& area) {
    const int step = pointsOfWholePixels(pixelRatio());
    if (step == 0) {
        update();
        return;
    }
    const auto down = [step](double edge) { return static_cast<int>(std::floor((edge - 1) / step)) * step; };
    const auto up = [step](double edge) { return static_cast<int>(std::ceil((edge + 1) / step)) * step; };
    const QPoint topLeft(down(area.left()), down(area.top()));
    update(QRect(topLeft, QSize(up(area.right()) - topLeft.x(), up(area.bottom()) - topLeft.y())));
}

void GameField::setLayoutSize(const QSizeF& size) {
    layoutSize_ = size;
    coverWholePixels();
    update();
}

void GameField::coverWholePixels() {
    const int step = std::max(pointsOfWholePixels(pixelRatio()), 1);
    const auto up = [step](double length) { return std::ceil(length / step) * step; };
    setImplicitSize(up(drawingSize().width()), up(drawingSize().height()));
}

QSGNode* GameField::updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) {
    // Otherwise a game that nobody plays would have its picture in memory.
    if (!isVisible()) {
        delete old;
        return nullptr;
    }
    auto* place = old != nullptr ? static_cast<QSGTransformNode*>(old) : new QSGTransformNode;
    auto* const before = place->firstChild();
    auto* const drawing = QQuickPaintedItem::updatePaintNode(before, data);
    if (drawing != nullptr && drawing != before) place->appendChildNode(drawing);
    const auto corner = mapToScene({0, 0});
    const auto aside = onPixels({corner, size()}).topLeft() - corner;
    QMatrix4x4 matrix;
    matrix.translate(static_cast<float>(aside.x()), static_cast<float>(aside.y()));
    if (place->matrix() != matrix) place->setMatrix(matrix);
    return place;
}

void GameField::itemChange(ItemChange change, const ItemChangeData& data) {
    QQuickPaintedItem::itemChange(change, data);
    if (change == ItemVisibleHasChanged) {
        // Not update(), after which a smaller area would count alone.
        update(boundingRect().toAlignedRect());
    }
    if (change != ItemSceneChange && change != ItemDevicePixelRatioHasChanged) return;
    coverWholePixels();
    update();
}

}  // namespace tidewatch
