#include "shell/style/liquid_painter.h"

#include <QBrush>
#include <QConicalGradient>
#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>
#include <QTransform>
#include <cmath>
#include <numbers>

#include "shell/style/qt_color.h"
#include "shell/style/soft_blur.h"

namespace tidewatch {
namespace {

constexpr double spectrumPeriod = 18;
constexpr double glintPeriod = 9;
constexpr double orbPeriod = 14;
constexpr double blurRadius = 28;
constexpr double spectrumOpacity = 0.7;
constexpr double baseOpacity = 0.18;

/// What lies under the liquid where the desktop cannot.
constexpr Color deepWater{0.05, 0.05, 0.09};

/// Round the colour wheel in steps of a pastel, so that neighbours melt into one another.
constexpr std::array<Color, 7> spectrum = {{
    {1, 0.42, 0.62},
    {1, 0.74, 0.42},
    {0.84, 0.96, 0.55},
    {0.42, 0.96, 0.74},
    {0.42, 0.74, 1},
    {0.62, 0.55, 1},
    {0.96, 0.42, 0.84},
}};

constexpr std::array<double, 7> glints = {0.3, 0, 0.1, 0, 0.4, 0, 0.2};

double angleAt(double seconds, double period) {
    return std::fmod(seconds, period) / period * 360;
}

/// A gradient round the centre whose last stop leads back into its first.
template <std::size_t Count>
QConicalGradient wheel(QPointF centre, double angle, const std::array<Color, Count>& stops) {
    QConicalGradient gradient(centre, angle);
    for (std::size_t i = 0; i <= Count; ++i) {
        gradient.setColorAt(static_cast<double>(i) / Count, toQColor(stops[i % Count]));
    }
    return gradient;
}

QImage spectrumImage(QSize pixels, double pixelsPerPoint, double angle, double intensity) {
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    auto colors = spectrum;
    for (auto& color : colors) color = color.at(spectrumOpacity * intensity);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(image.rect(), wheel(QRectF(image.rect()).center(), angle, colors));
    painter.end();
    blur(image, blurRadius * pixelsPerPoint);
    return image;
}

void paintGlints(QPainter& painter, QSizeF box, double angle) {
    std::array<Color, glints.size()> colors;
    for (std::size_t i = 0; i < glints.size(); ++i) colors[i] = Color::whiteAt(glints[i]);
    painter.fillRect(QRectF(QPointF(0, 0), box), wheel({box.width() / 2, box.height() / 2}, angle, colors));
}

void paintOrb(QPainter& painter, const SpecularOrb& orb, double pixelsPerPoint) {
    const double outer = orb.diameter / 2;
    const double inner = std::min(pixelsPerPoint, outer / 2);
    QRadialGradient light(orb.centre, outer);
    light.setColorAt(0, toQColor(Color::whiteAt(0.45)));
    light.setColorAt(inner / outer, toQColor(Color::whiteAt(0.45)));
    light.setColorAt((inner + outer) / 2 / outer, toQColor(Color::whiteAt(0.1)));
    light.setColorAt(1, toQColor(Color::whiteAt(0)));
    painter.setPen(Qt::NoPen);
    painter.setBrush(light);
    painter.drawEllipse(orb.centre, outer, outer);
}

}  // namespace

LiquidAngles liquidAngles(double seconds) {
    return {angleAt(seconds, spectrumPeriod), angleAt(seconds, glintPeriod), angleAt(seconds, orbPeriod)};
}

std::array<SpecularOrb, 4> specularOrbs(QSizeF box, double orbAngle) {
    struct Place {
        double degrees;
        double radius;
    };
    const std::array<Place, 4> places = {{
        {orbAngle, 0.36},
        {orbAngle + 120, 0.42},
        {orbAngle + 240, 0.30},
        {60 - 0.7 * orbAngle, 0.46},
    }};
    const double side = std::min(box.width(), box.height());
    std::array<SpecularOrb, 4> orbs;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const double radians = places[i].degrees * std::numbers::pi / 180;
        const double distance = places[i].radius * side;
        orbs[i] = {
            {box.width() / 2 + std::cos(radians) * distance, box.height() / 2 + std::sin(radians) * distance},
            0.3 * side};
    }
    return orbs;
}

QImage liquidImage(QSize pixels, QSizeF points, const LiquidAngles& angles, double intensity) {
    const double pixelsPerPoint = pixels.width() / points.width();
    const QSizeF box(pixels);
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(toQColor(Color::blackAt(baseOpacity)));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawImage(0, 0, spectrumImage(pixels, pixelsPerPoint, angles.spectrum, intensity));
    paintGlints(painter, box, angles.glints);
    for (const auto& orb : specularOrbs(box, angles.orbs)) paintOrb(painter, orb, pixelsPerPoint);
    return image;
}

void paintLiquid(QPainter& painter, const QImage& layers, const PanelShape& shape) {
    const auto area = shape.area();
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (shape.ground == Ground::opaque) painter.fillPath(area, toQColor(deepWater));

    QBrush liquid(layers);
    liquid.setTransform(
        QTransform::fromScale(shape.size.width() / layers.width(), shape.size.height() / layers.height()));
    painter.fillPath(area, liquid);

    QLinearGradient sheen(shape.bounds().topLeft(), shape.bounds().bottomRight());
    sheen.setColorAt(0, toQColor(Color::whiteAt(0.24)));
    sheen.setColorAt(0.3, toQColor(Color::blackAt(0.08)));
    sheen.setColorAt(1, toQColor(Color::blackAt(0.24)));
    painter.fillPath(area, sheen);
    drawBorder(painter, shape, toQColor(Color::whiteAt(0.35)), 0.75);
    painter.restore();
}

}  // namespace tidewatch
