#include "shell/style/tabular_text.h"

#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

namespace tidewatch {
namespace {

/// Room for what letters draw outside their own advance, on both sides, in pixels of the screen.
constexpr double overhang = 1;

}  // namespace

TabularText::TabularText(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

void TabularText::setText(const QString& text) {
    if (text == text_) return;
    text_ = text;
    layOutAgain();
    Q_EMIT textChanged();
}

void TabularText::setFont(const QFont& font) {
    if (font == font_) return;
    font_ = font;
    layOutAgain();
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
    layOutAgain();
    Q_EMIT layoutChanged();
}

void TabularText::setWordGap(double gap) {
    if (gap == options_.wordGap) return;
    options_.wordGap = gap;
    layOutAgain();
    Q_EMIT layoutChanged();
}

void TabularText::setMaximumWidth(double width) {
    if (width == options_.maximumWidth) return;
    options_.maximumWidth = width;
    layOutAgain();
    Q_EMIT layoutChanged();
}

void TabularText::setUnit(double unit) {
    if (unit == unit_) return;
    unit_ = unit;
    layOutAgain();
    Q_EMIT layoutChanged();
}

void TabularText::layOutAgain() {
    line_ = layOutTabular(text_, font_, options_);
    const QFontMetricsF metrics(font_);
    const double scale = unit_ * line_.shrink;
    setImplicitSize(std::ceil(line_.width * scale + 2 * overhang), std::ceil(metrics.height() * scale));
    update();
}

void TabularText::paint(QPainter* painter) {
    const double scale = unit_ * line_.shrink;
    painter->translate((width() - line_.width * scale) / 2, 0);
    painter->scale(scale, scale);
    painter->setFont(font_);
    painter->setPen(color_);
    const double baseline = QFontMetricsF(font_).ascent();
    for (const auto& run : line_.runs) painter->drawText(QPointF(run.x, baseline), run.text);
}

}  // namespace tidewatch
