#include "shell/icons/status_image.h"

#include <QFont>
#include <QPainterPath>

#include "shell/icons/fathom_icons.h"
#include "shell/icons/painted_image.h"
#include "shell/themes/fathom.h"
#include "ui/texts/qt_text.h"

namespace tidewatch {

namespace {

QColor moodColour(StatusTitle::Mood mood) {
    switch (mood) {
        case StatusTitle::Mood::low:
            return QColor::fromRgbF(0.769F, 0.271F, 0.271F);
        case StatusTitle::Mood::middling:
            return QColor::fromRgbF(0.91F, 0.769F, 0.345F);
        case StatusTitle::Mood::good:
            return QColor::fromRgbF(0.482F, 0.847F, 0.561F);
        case StatusTitle::Mood::none:
            break;
    }
    return {0xB4, 0xB2, 0xAC};
}

const QColor iconTint(0xEC, 0xEA, 0xE4);
const QColor halo(0, 0, 0, 120);

/// The outline of a text with this cap height and at most this width, its baseline at the origin.
QPainterPath textPath(const QString& text, double capHeight, double width) {
    QFont font(tidewatch::text(fathom::sansFamily));
    font.setPixelSize(100);
    font.setWeight(QFont::Bold);
    QPainterPath path;
    path.addText(0, 0, font, text);
    const auto bounds = path.boundingRect();
    if (bounds.isEmpty()) return path;
    const double capital = QFontMetricsF(font).capHeight();
    const double tall = capHeight / capital;
    const double wide = std::min(tall, width / bounds.width());
    return QTransform::fromScale(wide, tall).map(path.translated(-bounds.left(), 0));
}

/// The dash of a day without a score. Drawn, so that no font is loaded for it.
QPainterPath dashPath(double capHeight) {
    QPainterPath path;
    path.addRoundedRect(QRectF(0, -0.62 * capHeight, 1.5 * capHeight, 0.28 * capHeight), 0.14 * capHeight,
                        0.14 * capHeight);
    return path;
}

void fillWithHalo(QPainter& painter, const QPainterPath& path, const QColor& fill, double haloWidth) {
    painter.strokePath(path, QPen(halo, haloWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(path, fill);
}

}  // namespace

QImage statusImage(int pixels, const StatusTitle& title) {
    return paintedImage({pixels, pixels}, [&](QPainter& painter) {
        const double unit = pixels / 22.0;
        const double iconScale = unit * 12.5 / fathom::menubarIconHeight;
        const double iconLeft = (pixels - fathom::menubarIconWidth * iconScale) / 2;
        const auto place =
            QTransform::fromScale(iconScale, iconScale) * QTransform::fromTranslate(iconLeft, 0);
        fillWithHalo(painter, place.map(fathom::menubarIconShape()), iconTint, unit);
        const double capHeight = unit * 7.6;
        auto figure = title.mood == StatusTitle::Mood::none
                          ? dashPath(capHeight)
                          : textPath(text(title.figure), capHeight, pixels - 1.0);
        const auto bounds = figure.boundingRect();
        figure.translate((pixels - bounds.width()) / 2 - bounds.left(), pixels - unit * 1.2);
        fillWithHalo(painter, figure, moodColour(title.mood), unit);
    });
}

}  // namespace tidewatch
