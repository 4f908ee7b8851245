#include "shell/windows/panel_shadow.h"

#include <QPainter>

namespace tidewatch {

namespace {

constexpr int layers = 14;
constexpr double drop = 4;
constexpr double strength = 0.42;

}  // namespace

PanelShadow::PanelShadow(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

void PanelShadow::setCornerRadius(double radius) {
    if (radius == cornerRadius_) return;
    cornerRadius_ = radius;
    update();
}

void PanelShadow::paint(QPainter* painter) {
    painter->setPen(Qt::NoPen);
    const QRectF panel = boundingRect().adjusted(reach, reach, -reach, -reach);
    // Layers shrinking toward the panel add up to a shadow that fades with the square of the distance.
    for (int layer = 0; layer < layers; ++layer) {
        const double distance = (reach - drop) * (1.0 - static_cast<double>(layer) / layers);
        const double share = 2.0 * (layer + 1) / (layers * (layers + 1));
        painter->setBrush(QColor::fromRgbF(0, 0, 0, static_cast<float>(strength * share)));
        const double radius = cornerRadius_ + distance;
        painter->drawRoundedRect(panel.adjusted(-distance, -distance, distance, distance).translated(0, drop),
                                 radius, radius);
    }
}

}  // namespace tidewatch
