#include "shell/icons/fathom_icons.h"

#include <cmath>
#include <numbers>

#include "shell/icons/clapper_drawing.h"
#include "shell/icons/painted_image.h"
#include "shell/themes/fathom.h"

namespace tidewatch::fathom {

namespace {

QColor colour(const Color& from) {
    return QColor::fromRgbF(static_cast<float>(from.red), static_cast<float>(from.green),
                            static_cast<float>(from.blue), static_cast<float>(from.alpha));
}

ClapperMetrics menubarMetrics() {
    constexpr double w = menubarIconWidth;
    constexpr double h = menubarIconHeight;
    const QRectF slate(0.16 * w, 0.10 * h, 0.68 * w, 0.52 * h);
    return {
        .slate = slate,
        .slateCorner = 1.6,
        .slateLine = 1.2,
        .handLine = 1.3,
        .dotDiameter = 2.2,
        .bar = QRectF(0.13 * w, slate.bottom() + 0.08 * h, 0.74 * w, 0.20 * h),
        .barCorner = 1.0,
        .barTurn = -0.31,
        .barPivot = QPointF(slate.center().x(), slate.bottom()),
    };
}

ClapperMetrics appIconMetrics() {
    const auto fromTop = [](double y) { return appIconUnits - y; };
    return {
        .slate = QRectF(34, fromTop(134), 92, 58),
        .slateCorner = 7,
        .slateLine = 8,
        .handLine = 8,
        .dotDiameter = 14,
        .bar = QRectF(30, fromTop(58), 100, 26),
        .barCorner = 5,
        .barTurn = -std::numbers::pi / 10,
        .barPivot = QPointF(80, fromTop(58)),
    };
}

}  // namespace

const QPainterPath& menubarIconShape() {
    // Joining the parts takes milliseconds, and the tray's icon needs them in every size.
    static const auto shape = [] {
        const auto upsideDown =
            QTransform::fromScale(1, -1) * QTransform::fromTranslate(0, menubarIconHeight);
        return upsideDown.map(drawClapper(menubarMetrics()).whole());
    }();
    return shape;
}

QImage menubarIcon(double scale, const QColor& tint) {
    const QSize pixels(static_cast<int>(std::ceil(menubarIconWidth * scale)),
                       static_cast<int>(std::ceil(menubarIconHeight * scale)));
    return paintedImage(pixels, [&](QPainter& painter) {
        painter.scale(scale, scale);
        painter.fillPath(menubarIconShape(), tint);
    });
}

std::vector<FilledShape> appIconShapes() {
    QPainterPath square;
    square.addRoundedRect(QRectF(0, 0, appIconUnits, appIconUnits), 36, 36);
    QLinearGradient ground(0, appIconUnits, appIconUnits, 0);
    ground.setColorAt(0, QColor(0x2E, 0x2E, 0x2C));
    ground.setColorAt(1, colour(ink));
    const auto drawing = drawClapper(appIconMetrics());
    return {
        {square, ground},
        {drawing.slate, colour(paper)},
        {drawing.bar, colour(paper)},
        {drawing.hands, colour(green)},
        {drawing.dot, colour(green)},
    };
}

QImage appIcon(int pixels) {
    return paintedImage({pixels, pixels}, [&](QPainter& painter) {
        painter.translate(0, pixels);
        painter.scale(pixels / appIconUnits, -pixels / appIconUnits);
        for (const auto& [path, fill] : appIconShapes()) painter.fillPath(path, fill);
    });
}

}  // namespace tidewatch::fathom
