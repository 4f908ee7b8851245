#include "ui/style/contrast.h"

#include <algorithm>
#include <cmath>

namespace tidewatch {
namespace {

// The relative luminance of sRGB colours as defined by WCAG.
double linear(double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(static_cast<double>(color.redF())) +
           0.7152 * linear(static_cast<double>(color.greenF())) +
           0.0722 * linear(static_cast<double>(color.blueF()));
}

QColor mixed(const QColor& from, const QColor& to, float share) {
    const auto part = [share](float a, float b) { return a + (b - a) * share; };
    return QColor::fromRgbF(part(from.redF(), to.redF()), part(from.greenF(), to.greenF()),
                            part(from.blueF(), to.blueF()));
}

}  // namespace

double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor blendedOver(const QColor& top, const QColor& ground) {
    return mixed(ground, top, top.alphaF());
}

QColor legibleOn(const QColor& ground, const QColor& color) {
    const QColor seen = blendedOver(color, ground);
    if (contrast(seen, ground) >= minContrast) return color;
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    const QColor& extreme = contrast(black, ground) > contrast(white, ground) ? black : white;
    constexpr int steps = 20;
    for (int step = 1; step < steps; ++step) {
        const auto candidate = mixed(seen, extreme, static_cast<float>(step) / steps);
        if (contrast(candidate, ground) >= minContrast) return candidate;
    }
    return extreme;
}

}  // namespace tidewatch
