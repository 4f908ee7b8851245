#pragma once

#include <QByteArray>
#include <vector>

#include "shell/icons/fathom_icons.h"

namespace tidewatch {

/// The shapes, back to front, as an SVG picture of a square with sides of `units`; their y grows upward.
/// Fills are plain colours or linear gradients.
[[nodiscard]] QByteArray iconSvg(const std::vector<fathom::FilledShape>& shapes, double units);

}  // namespace tidewatch
