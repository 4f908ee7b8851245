#include "ui/backgrounds/decorations.h"

#include <QPainter>
#include <QRadialGradient>

#include "ui/backgrounds/scanlines.h"
#include "ui/style/qt_color.h"

namespace tidewatch {

EditorialPaperGrain::EditorialPaperGrain(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

void EditorialPaperGrain::paint(QPainter* painter) {
    constexpr double lightRadius = 700;
    QRadialGradient light(boundingRect().center(), lightRadius);
    light.setColorAt(0, toQColor(Color::whiteAt(0.12)));
    light.setColorAt(0.5, toQColor(Color::whiteAt(0)));
    light.setColorAt(1, toQColor(Color::blackAt(0.018)));
    painter->fillRect(boundingRect(), light);

    constexpr double hairline = 0.4;
    constexpr double distance = 22;
    const auto ink = toQColor(Color::blackAt(0.022));
    for (double y = distance; y < height(); y += distance)
        painter->fillRect(QRectF(0, y, width(), hairline), ink);
}

HackerScanlines::HackerScanlines(QQuickItem* parent) : QQuickPaintedItem(parent) {}

void HackerScanlines::paint(QPainter* painter) {
    paintScanlines(*painter, boundingRect(), {toQColor(Color{0, 1, 0.255, 0.05}), 3, 1});
}

}  // namespace tidewatch
