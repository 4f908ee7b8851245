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

/// Behind all of it: what is light and thin is lost on a light panel, and nobody tells how light a panel is.
const QColor ground(0x10, 0x12, 0x14, 235);

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

}  // namespace

QImage statusImage(int pixels, const StatusTitle& title) {
    return paintedImage({pixels, pixels}, [&](QPainter& painter) {
        const double unit = pixels / 22.0;
        QPainterPath tile;
        tile.addRoundedRect(QRectF(0, 0, pixels, pixels).adjusted(0.5, 0.5, -0.5, -0.5), unit * 4, unit * 4);
        painter.fillPath(tile, ground);
        const double iconScale = unit * 10.5 / fathom::menubarIconHeight;
        const double iconLeft = (pixels - fathom::menubarIconWidth * iconScale) / 2;
        const auto place =
            QTransform::fromScale(iconScale, iconScale) * QTransform::fromTranslate(iconLeft, unit * 1.4);
        painter.fillPath(place.map(fathom::menubarIconShape()), iconTint);
        const double capHeight = unit * 7.2;
        auto figure = title.mood == StatusTitle::Mood::none
                          ? dashPath(capHeight)
                          : textPath(text(title.figure), capHeight, pixels - unit * 3);
        const auto bounds = figure.boundingRect();
        figure.translate((pixels - bounds.width()) / 2 - bounds.left(), pixels - unit * 2.2);
        painter.fillPath(figure, moodColour(title.mood));
    });
}

}  // namespace tidewatch
