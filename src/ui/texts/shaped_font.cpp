#include "ui/texts/shaped_font.h"

#include <QPainter>
#include <QTextLayout>
#include <algorithm>

namespace tidewatch {
namespace {

/// A line has few parts; those that change every second must not accumulate.
constexpr int keptTexts = 64;

/// The value at `key`, created by `make` on first use.
template <class Key, class Value, class Make>
const Value& remembered(QHash<Key, Value>& values, const Key& key, Make&& make) {
    const auto known = values.constFind(key);
    if (known != values.constEnd()) return *known;
    if (values.size() >= keptTexts) values.clear();
    return *values.insert(key, make());
}

QList<QGlyphRun> shape(const QString& text, const QFont& font) {
    QTextLayout layout(text, font);
    layout.beginLayout();
    auto line = layout.createLine();
    line.setNumColumns(static_cast<int>(text.size()));
    line.setPosition({0, -line.ascent()});
    layout.endLayout();
    return layout.glyphRuns();
}

}  // namespace

double ShapedFont::advance(QChar character) {
    return remembered(characterAdvances_, character, [&] { return metrics_.horizontalAdvance(character); });
}

double ShapedFont::advance(const QString& text) {
    return remembered(advances_, text, [&] { return metrics_.horizontalAdvance(text); });
}

double ShapedFont::widestDigit() {
    if (!widestDigit_) {
        widestDigit_ = 0;
        for (char16_t digit = u'0'; digit <= u'9'; ++digit) {
            widestDigit_ = std::max(*widestDigit_, advance(QChar(digit)));
        }
    }
    return *widestDigit_;
}

void ShapedFont::draw(QPainter& painter, const QPointF& origin, const QString& text) {
    for (const auto& run : glyphs(text)) painter.drawGlyphRun(origin, run);
}

const QList<QGlyphRun>& ShapedFont::glyphs(const QString& text) {
    return remembered(glyphs_, text, [&] { return shape(text, font_); });
}

}  // namespace tidewatch
