#include "shell/windows/menu_row_look.h"

#include <QPainter>
#include <QPixmap>
#include <array>

#include "shell/windows/elided_text.h"
#include "ui/texts/display_text.h"

namespace tidewatch {

namespace {

/// The widest title that a menu has room for, in pixels.
constexpr double titleWidth = 320;

}  // namespace

QString menuTitle(const std::string& title, const QFont& font) {
    return elidedLine(visibleName(title), font, titleWidth);
}

QIcon menuSwatch(const RgbColor& color, bool checked) {
    constexpr double side = 48;
    QPixmap dot(static_cast<int>(side), static_cast<int>(side));
    dot.fill(Qt::transparent);
    QPainter painter(&dot);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(color.red, color.green, color.blue));
    const double inset = side / (checked ? 24 : 6);
    painter.drawEllipse(QRectF(0, 0, side, side).adjusted(inset, inset, -inset, -inset));
    if (checked) {
        painter.setPen(QPen(QColor(0x12, 0x12, 0x12), side / 9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const std::array mark = {QPointF(0.29, 0.52) * side, QPointF(0.44, 0.67) * side,
                                 QPointF(0.72, 0.34) * side};
        painter.drawPolyline(mark.data(), static_cast<int>(mark.size()));
    }
    return dot;
}

QKeySequence menuShortcut(char keyEquivalent) {
    return QKeySequence(Qt::CTRL |
                        static_cast<Qt::Key>(QChar::fromLatin1(keyEquivalent).toUpper().unicode()));
}

}  // namespace tidewatch
