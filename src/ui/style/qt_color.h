#pragma once

#include <QColor>

#include "shell/themes/color.h"

namespace tidewatch {

[[nodiscard]] inline QColor toQColor(const Color& color) {
    const auto part = [](double value) { return static_cast<float>(value); };
    return QColor::fromRgbF(part(color.red), part(color.green), part(color.blue), part(color.alpha));
}

}  // namespace tidewatch
