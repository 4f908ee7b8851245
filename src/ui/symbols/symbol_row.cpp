#include "ui/symbols/symbol_row.h"

#include <QPainter>
#include <algorithm>

#include "ui/backgrounds/pixel_picture.h"
#include "ui/symbols/symbol_table.h"

namespace tidewatch {

SymbolRow::SymbolRow(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

void SymbolRow::setNames(const QStringList& names) {
    if (names == names_) return;
    names_ = names;
    updateLength();
    Q_EMIT namesChanged();
}

void SymbolRow::setColors(const QList<QColor>& colors) {
    if (colors == colors_) return;
    colors_ = colors;
    update();
    Q_EMIT colorsChanged();
}

void SymbolRow::setSide(double side) {
    if (side == side_) return;
    side_ = side;
    updateLength();
    Q_EMIT metricsChanged();
}

void SymbolRow::setSpacing(double spacing) {
    if (spacing == spacing_) return;
    spacing_ = spacing;
    updateLength();
    Q_EMIT metricsChanged();
}

double SymbolRow::length() const {
    const auto count = static_cast<double>(names_.size());
    return names_.isEmpty() ? 0 : count * side_ + (count - 1) * spacing_;
}

void SymbolRow::updateLength() {
    setImplicitSize(length(), side_);
    setPictureSize(*this, {length(), side_});
}

void SymbolRow::geometryChange(const QRectF& to, const QRectF& from) {
    QQuickPaintedItem::geometryChange(to, from);
    setPictureSize(*this, {length(), side_});
}

void SymbolRow::paint(QPainter* painter) {
    painter->translate((width() - length()) / 2, (height() - side_) / 2);
    const auto count = std::min(names_.size(), colors_.size());
    for (qsizetype i = 0; i < count; ++i) {
        if (const auto shape = symbolShape(names_[i])) {
            painter->save();
            painter->translate(static_cast<double>(i) * (side_ + spacing_), 0);
            painter->scale(side_, side_);
            painter->fillPath(*shape, colors_[i]);
            painter->restore();
        }
    }
}

}  // namespace tidewatch
