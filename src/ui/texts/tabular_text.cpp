#include "ui/texts/tabular_text.h"

#include <QPainter>
#include <QQuickWindow>
#include <algorithm>
#include <array>
#include <cmath>

#include "ui/backgrounds/pixel_picture.h"

namespace tidewatch {
namespace {

/// Letters below this size, in screen pixels, lose half of their colour to antialiasing. Drawing them twice
/// restores it without making them bolder.
constexpr double faintSize = 12;

/// The vertical offsets of the shadow's layers, in the font's pixels.
constexpr std::array shadeDrops = {0.3, 0.6, 0.9, 1.2};

}  // namespace

TabularText::TabularText(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

void TabularText::setText(const QString& text) {
    if (text == text_) return;
    text_ = text;
    relayout();
    Q_EMIT textChanged();
}

void TabularText::setFont(const QFont& font) {
    if (font == font_.font()) return;
    font_ = ShapedFont(font);
    relayout();
    Q_EMIT layoutChanged();
}

void TabularText::setColor(const QColor& color) {
    if (color == color_) return;
    color_ = color;
    update();
    Q_EMIT colorChanged();
}

void TabularText::setEqualDigits(bool equal) {
    if (equal == equalDigits()) return;
    options_.digits = equal ? Digits::monospaced : Digits::proportional;
    relayout();
    Q_EMIT layoutChanged();
}

void TabularText::setWordGap(double gap) {
    if (gap == options_.wordGap) return;
    options_.wordGap = gap;
    relayout();
    Q_EMIT layoutChanged();
}

void TabularText::setMaximumWidth(double width) {
    if (width == options_.maximumWidth) return;
    options_.maximumWidth = width;
    relayout();
    Q_EMIT layoutChanged();
}

void TabularText::setUnit(double unit) {
    if (unit == unit_) return;
    unit_ = unit;
    relayout();
    Q_EMIT layoutChanged();
}

void TabularText::setShade(const QColor& shade) {
    if (shade == shade_) return;
    shade_ = shade;
    update();
    Q_EMIT colorChanged();
}

double TabularText::screenPixel() const {
    return 1 / (window() != nullptr ? window()->effectiveDevicePixelRatio() : 1.0);
}

void TabularText::itemChange(ItemChange change, const ItemChangeData& data) {
    QQuickPaintedItem::itemChange(change, data);
    if (change == ItemSceneChange || change == ItemDevicePixelRatioHasChanged) relayout();
}

void TabularText::componentComplete() {
    QQuickPaintedItem::componentComplete();
    relayout();
}

void TabularText::relayout() {
    // While a view is being created, the font may not be set yet: the default one would be loaded for
    // nothing.
    if (!isComponentComplete()) return;
    auto options = options_;
    options.screenPixel = screenPixel() / unit_;
    line_ = layOutTabular(text_, font_, options);
    const double scale = unit_ * line_.shrink;
    const auto& metrics = font_.metrics();
    // Room on both sides for letters that overhang their advance width.
    const double overhang =
        text_.isEmpty()
            ? 0
            : std::max({0.0, -metrics.leftBearing(text_.front()), -metrics.rightBearing(text_.back())});
    const QSizeF exact((line_.width + 2 * overhang) * scale, metrics.height() * scale);
    setImplicitSize(exact.width(), exact.height());
    // The texture has whole pixels; the implicit size is the line's exact one.
    setPictureSize(*this, exact);
}

void TabularText::geometryChange(const QRectF& to, const QRectF& from) {
    QQuickPaintedItem::geometryChange(to, from);
    setPictureSize(*this, {implicitWidth(), implicitHeight()});
}

void TabularText::paint(QPainter* painter) {
    const double scale = unit_ * line_.shrink;
    const double pixel = screenPixel();
    // On a tie round up: text looks centred slightly above its middle.
    const auto onPixel = [pixel](double length) { return std::floor(length / pixel + 0.4) * pixel; };
    const auto& metrics = font_.metrics();
    painter->translate(onPixel((width() - line_.width * scale) / 2), onPixel(metrics.ascent() * scale));
    painter->scale(scale, scale);
    if (shade_.alpha() > 0) drawShade(*painter);
    drawLetters(*painter, color_);
    if (metrics.ascent() * scale / pixel < faintSize) drawLetters(*painter, color_);
}

void TabularText::drawShade(QPainter& painter) {
    QColor layer = shade_;
    layer.setAlphaF(shade_.alphaF() / static_cast<float>(shadeDrops.size()));
    for (const double drop : shadeDrops) {
        painter.translate(0, drop);
        drawLetters(painter, layer);
        painter.translate(0, -drop);
    }
}

void TabularText::drawLetters(QPainter& painter, const QColor& color) {
    painter.setPen(color);
    for (const auto& run : line_.runs) font_.draw(painter, {run.x, 0}, run.text);
}

}  // namespace tidewatch
