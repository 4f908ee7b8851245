#include "shell/windows/menu_row_look.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <array>

#include "shell/windows/elided_text.h"
#include "ui/symbols/symbol_table.h"
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

QIcon menuSymbol(std::string_view name, const MenuInk& ink, bool checked) {
    const auto shape = symbolShape(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
    if (!shape) return {};
    constexpr int side = 48;
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side, side);
    if (checked) {
        QPainterPath plate;
        plate.addRoundedRect(QRectF(0, 0, 1, 1), 0.24, 0.24);
        painter.fillPath(plate, ink.symbol);
        painter.translate(0.12, 0.12);
        painter.scale(0.76, 0.76);
    }
    painter.fillPath(*shape, checked ? ink.ground : ink.symbol);
    return picture;
}

QKeySequence menuShortcut(char keyEquivalent) {
    return QKeySequence(Qt::CTRL |
                        static_cast<Qt::Key>(QChar::fromLatin1(keyEquivalent).toUpper().unicode()));
}

}  // namespace tidewatch
