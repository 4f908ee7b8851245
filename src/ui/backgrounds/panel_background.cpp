#include "ui/backgrounds/panel_background.h"

#include <QPainter>

#include "ui/backgrounds/pixel_picture.h"

namespace tidewatch {
namespace {

PanelBackground fromKind(PanelBackgroundItem::Kind kind) {
    switch (kind) {
        case PanelBackgroundItem::Ochre:
            return PanelBackground::ochre;
        case PanelBackgroundItem::Editorial:
            return PanelBackground::editorial;
        case PanelBackgroundItem::Minimal:
            return PanelBackground::minimal;
        case PanelBackgroundItem::Hacker:
            return PanelBackground::hacker;
        case PanelBackgroundItem::Liquid:
            return PanelBackground::liquid;
    }
    return PanelBackground::ochre;
}

}  // namespace

PanelBackgroundItem::Kind PanelBackgroundItem::toKind(PanelBackground background) {
    switch (background) {
        case PanelBackground::ochre:
            return Ochre;
        case PanelBackground::editorial:
            return Editorial;
        case PanelBackground::minimal:
            return Minimal;
        case PanelBackground::hacker:
            return Hacker;
        case PanelBackground::liquid:
            return Liquid;
    }
    return Ochre;
}

PanelBackgroundItem::PanelBackgroundItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

void PanelBackgroundItem::setKind(Kind kind) {
    if (kind == kind_) return;
    kind_ = kind;
    announce();
}

void PanelBackgroundItem::setCornerRadius(double radius) {
    if (radius == cornerRadius_) return;
    cornerRadius_ = radius;
    announce();
}

void PanelBackgroundItem::setUnit(double unit) {
    if (unit == unit_) return;
    unit_ = unit;
    announce();
}

void PanelBackgroundItem::setTranslucent(bool translucent) {
    if (translucent == this->translucent()) return;
    ground_ = translucent ? Ground::translucent : Ground::opaque;
    announce();
}

void PanelBackgroundItem::geometryChange(const QRectF& to, const QRectF& from) {
    QQuickPaintedItem::geometryChange(to, from);
    setPictureSize(*this);
}

void PanelBackgroundItem::announce() {
    update();
    Q_EMIT changed();
}

void PanelBackgroundItem::paint(QPainter* painter) {
    paintPanel(*painter, fromKind(kind_),
               {contentsBoundingRect().size(), cornerRadius_ * unit_, unit_, ground_});
}

}  // namespace tidewatch
