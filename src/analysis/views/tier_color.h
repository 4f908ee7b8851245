#pragma once

#include <QColor>

#include "classification/tier.h"
#include "shell/themes/ochre_palette.h"
#include "ui/style/qt_color.h"

namespace tidewatch {

/// The colour of a tier in lists, chips and bars.
[[nodiscard]] QColor tierColor(Tier tier);

/// The colour of a tier in ten-minute cells, where uncategorized is slightly fainter.
[[nodiscard]] QColor bucketColor(Tier tier);

}  // namespace tidewatch
