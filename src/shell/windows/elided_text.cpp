#include "shell/windows/elided_text.h"

#include <QFontMetricsF>

#include "base/characters.h"
#include "ui/texts/qt_text.h"

namespace tidewatch {

namespace {

/// More bytes than any line shows: the toolkit measures a whole text before it elides it.
constexpr std::size_t maxFittedBytes = 4096;

}  // namespace

QString elidedLine(std::string_view text, const QFont& font, double width) {
    const auto head = charactersWithin(maxFittedBytes, text);
    auto line = tidewatch::text(onOneLine(head));
    if (head.size() < text.size()) line += u'…';
    return QFontMetricsF(font).elidedText(line, Qt::ElideRight, width);
}

}  // namespace tidewatch
