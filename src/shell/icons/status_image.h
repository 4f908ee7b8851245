#pragma once

#include <QImage>

#include "shell/status_title.h"

namespace tidewatch {

/// The status item for a tray, which gives it a square of `pixels` a side: the brand's figure above, the
/// day's figure below it. Legible on light and dark trays.
[[nodiscard]] QImage statusImage(int pixels, const StatusTitle& title);

}  // namespace tidewatch
