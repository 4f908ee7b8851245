#pragma once

#include <QImage>

#include "shell/status_title.h"

namespace tidewatch {

/// The tray icon as a square with sides of `pixels`: the brand's logo above, the day's figure below. Legible
/// on light and dark trays.
[[nodiscard]] QImage statusImage(int pixels, const StatusTitle& title);

}  // namespace tidewatch
