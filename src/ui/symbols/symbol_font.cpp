#include "ui/symbols/symbol_font.h"

#include <QFont>
#include <QRawFont>
#include <QString>
#include <QTransform>

namespace tidewatch {
namespace {

/// Large enough for precise outlines.
constexpr int outlinePixels = 512;

QRawFont symbolFont() {
    const auto family = QString::fromUtf16(symbolFontFamily);
    QFont font(family);
    font.setPixelSize(outlinePixels);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::NoFontMerging);
    auto found = QRawFont::fromFont(font);
    return found.familyName() == family ? found : QRawFont();
}

}  // namespace

QPainterPath symbolGlyph(char32_t codePoint) {
    const auto font = symbolFont();
    if (!font.isValid()) return {};
    const auto glyphs = font.glyphIndexesForString(QString::fromUcs4(&codePoint, 1));
    if (glyphs.isEmpty() || glyphs.front() == 0) return {};
    // Glyphs are relative to the baseline; the em square reaches from there to the ascent.
    const auto toUnitSquare = QTransform::fromTranslate(0, font.ascent()) *
                              QTransform::fromScale(1.0 / outlinePixels, 1.0 / outlinePixels);
    return toUnitSquare.map(font.pathForGlyph(glyphs.front()));
}

}  // namespace tidewatch
