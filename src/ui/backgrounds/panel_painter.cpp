#include "ui/backgrounds/panel_painter.h"

#include <QLinearGradient>
#include <QPainter>

#include "ui/backgrounds/scanlines.h"
#include "ui/style/qt_color.h"

namespace tidewatch {
namespace {

const Color phosphor{0, 1, 0.255};

QLinearGradient downward(const PanelShape& shape) {
    return {0, 0, 0, shape.size.height()};
}

void paintOchre(QPainter& painter, const PanelShape& shape) {
    painter.fillPath(shape.area(), toQColor(fathom::inkNS));
    auto light = downward(shape);
    light.setColorAt(0, toQColor(Color::whiteAt(0.04)));
    light.setColorAt(0.5, toQColor(Color::whiteAt(0)));
    painter.fillPath(shape.area(), light);
}

void paintEditorial(QPainter& painter, const PanelShape& shape) {
    painter.fillPath(shape.area(), toQColor(fathom::paper));
    auto shade = downward(shape);
    shade.setColorAt(0, toQColor(Color::blackAt(0.025)));
    shade.setColorAt(0.5, toQColor(Color::blackAt(0)));
    shade.setColorAt(1, toQColor(Color::blackAt(0.015)));
    painter.fillPath(shape.area(), shade);
    drawBorder(painter, shape, toQColor(Color::blackAt(0.07)), 0.5);
}

/// A dark pane. Blurring behind windows is not available everywhere, so it is dense enough for its digits to
/// be legible over anything.
void paintMinimal(QPainter& painter, const PanelShape& shape) {
    const double density = shape.ground == Ground::translucent ? 0.78 : 1;
    painter.fillPath(shape.area(), toQColor(Color{0.135, 0.135, 0.145}.at(density)));
    auto light = downward(shape);
    light.setColorAt(0, toQColor(Color::whiteAt(0.07)));
    light.setColorAt(0.55, toQColor(Color::whiteAt(0.015)));
    light.setColorAt(1, toQColor(Color::whiteAt(0)));
    painter.fillPath(shape.area(), light);
    drawBorder(painter, shape, toQColor(Color::whiteAt(0.13)), 0.75);
}

void paintHacker(QPainter& painter, const PanelShape& shape) {
    painter.fillPath(shape.area(), toQColor(Color::blackAt(1)));
    painter.fillPath(shape.area(), toQColor(Color{0, 0.05, 0.02}.at(0.4)));
    painter.save();
    painter.setClipPath(shape.area(), Qt::IntersectClip);
    painter.setCompositionMode(QPainter::CompositionMode_Screen);
    paintScanlines(painter, shape.bounds(), {toQColor(phosphor.at(0.06)), 2, shape.unit});
    painter.restore();
    drawBorder(painter, shape, toQColor(phosphor.at(0.2)), 1);
}

}  // namespace

void paintPanel(QPainter& painter, PanelBackground background, const PanelShape& shape) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    switch (background) {
        case PanelBackground::ochre:
            paintOchre(painter, shape);
            break;
        case PanelBackground::editorial:
            paintEditorial(painter, shape);
            break;
        case PanelBackground::minimal:
            paintMinimal(painter, shape);
            break;
        case PanelBackground::hacker:
            paintHacker(painter, shape);
            break;
        case PanelBackground::liquid:
            break;
    }
    painter.restore();
}

}  // namespace tidewatch
