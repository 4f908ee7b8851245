#include "ui/backgrounds/liquid_painter.h"

#include <QBrush>
#include <QConicalGradient>
#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "ui/backgrounds/soft_blur.h"
#include "ui/style/qt_color.h"

namespace tidewatch {
namespace {

constexpr double spectrumPeriod = 18;
constexpr double glintPeriod = 9;
constexpr double orbPeriod = 14;
constexpr double blurRadius = 28;
constexpr double spectrumOpacity = 0.7;
constexpr double baseOpacity = 0.18;

/// The base under the liquid on an opaque panel.
constexpr Color deepWater{0.05, 0.05, 0.09};

/// Pastel steps around the colour wheel, so that neighbours blend.
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

/// A square image of a wheel, large enough to cover a box of `box` pixels at any rotation.
template <std::size_t Count>
QImage wheelImage(QSize box, const std::array<Color, Count>& stops) {
    const int side = static_cast<int>(std::ceil(std::hypot(box.width(), box.height()))) + 2;
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    QConicalGradient gradient(QRectF(image.rect()).center(), 0);
    // The last stop equals the first.
    for (std::size_t i = 0; i <= Count; ++i) {
        gradient.setColorAt(static_cast<double>(i) / Count, toQColor(stops[i % Count]));
    }
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(image.rect(), gradient);
    return image;
}

QImage spectrumImage(const LiquidSetting& setting) {
    auto colors = spectrum;
    for (auto& color : colors) color = color.at(spectrumOpacity * setting.intensity);
    auto image = wheelImage(setting.pixels, colors);
    blur(image, blurRadius * setting.pixels.width() / setting.points.width());
    return image;
}

QImage glintsImage(const LiquidSetting& setting) {
    std::array<Color, glints.size()> colors;
    for (std::size_t i = 0; i < glints.size(); ++i) colors[i] = Color::whiteAt(glints[i]);
    return wheelImage(setting.pixels, colors);
}

/// Angles are counterclockwise.
void drawTurned(QPainter& painter, const QImage& image, QPointF centre, double angle) {
    painter.save();
    painter.translate(centre);
    painter.rotate(-angle);
    painter.drawImage(QPointF(-image.width() / 2.0, -image.height() / 2.0), image);
    painter.restore();
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

/// Light from the upper left, and a shade below that makes white text legible.
QLinearGradient sheen(const QRectF& box) {
    QLinearGradient gradient(box.topLeft(), box.bottomRight());
    gradient.setColorAt(0, toQColor(Color::whiteAt(0.24)));
    gradient.setColorAt(0.3, toQColor(Color::blackAt(0.08)));
    gradient.setColorAt(1, toQColor(Color::blackAt(0.24)));
    return gradient;
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

LiquidPainter::LiquidPainter(const LiquidSetting& setting)
    : setting_(setting), spectrum_(spectrumImage(setting)), glints_(glintsImage(setting)) {}

QImage LiquidPainter::paint(const LiquidAngles& angles) const {
    QImage image(setting_.pixels, QImage::Format_ARGB32_Premultiplied);
    const QRectF box(image.rect());
    image.fill(setting_.ground == Ground::opaque ? toQColor(deepWater) : Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.fillRect(box, toQColor(Color::blackAt(baseOpacity)));
    drawTurned(painter, spectrum_, box.center(), angles.spectrum);
    drawTurned(painter, glints_, box.center(), angles.glints);
    const double pixelsPerPoint = setting_.pixels.width() / setting_.points.width();
    for (const auto& orb : specularOrbs(box.size(), angles.orbs)) paintOrb(painter, orb, pixelsPerPoint);
    painter.fillRect(box, sheen(box));
    return image;
}

void paintLiquid(QPainter& painter, const QImage& layers, const PanelShape& shape) {
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    QBrush liquid(layers);
    // From the centre of the outermost pixels: beyond them the brush would blend in the opposite edge.
    liquid.setTransform(QTransform::fromTranslate(-0.5, -0.5) *
                        QTransform::fromScale(shape.size.width() / std::max(1, layers.width() - 1),
                                              shape.size.height() / std::max(1, layers.height() - 1)));
    painter.fillPath(shape.area(), liquid);
    drawBorder(painter, shape, toQColor(Color::whiteAt(0.35)), 0.75);
    painter.restore();
}

}  // namespace tidewatch
