#include "ui/symbols/app_icon_view.h"

#include <QPainter>
#include <cmath>

#include "ui/symbols/application_icon.h"
#include "ui/symbols/symbol_table.h"

namespace tidewatch {

AppIconView::AppIconView(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    updatePicture();
}

void AppIconView::setIconName(const QString& name) {
    if (name == iconName_) return;
    iconName_ = name;
    updatePicture();
    Q_EMIT iconNameChanged();
}

void AppIconView::setSymbolName(const QString& name) {
    if (name == symbolName_) return;
    symbolName_ = name;
    updatePicture();
    Q_EMIT symbolNameChanged();
}

void AppIconView::setColor(const QColor& color) {
    if (color == color_) return;
    color_ = color;
    if (!showsIcon()) update();
    Q_EMIT colorChanged();
}

void AppIconView::setSide(double side) {
    if (side == side_) return;
    side_ = side;
    setImplicitSize(side, side);
    update();
    Q_EMIT sideChanged();
}

void AppIconView::updatePicture() {
    icon_ = symbolName_.isEmpty() ? applicationIcon(iconName_) : QIcon();
    symbol_ = QPainterPath();
    if (icon_.isNull()) symbol_ = symbolShape(symbolName_.isEmpty() ? "app" : symbolName_).value_or(symbol_);
    rendered_ = QPixmap();
    update();
}

void AppIconView::paint(QPainter* painter) {
    painter->translate((width() - side_) / 2, (height() - side_) / 2);
    if (!showsIcon()) {
        painter->scale(side_, side_);
        painter->fillPath(symbol_, color_);
        return;
    }
    const int pixels = static_cast<int>(std::ceil(side_ * std::abs(painter->deviceTransform().m11())));
    if (std::max(rendered_.width(), rendered_.height()) != pixels) {
        rendered_ = icon_.pixmap(QSize(pixels, pixels), 1.0);
    }
    // A smaller icon is scaled up; the aspect ratio is kept.
    const auto size = QSizeF(rendered_.size()).scaled(side_, side_, Qt::KeepAspectRatio);
    const QRectF place((side_ - size.width()) / 2, (side_ - size.height()) / 2, size.width(), size.height());
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawPixmap(place, rendered_, rendered_.rect());
}

}  // namespace tidewatch
