#pragma once

#include <QPalette>
#include <QString>

#include "shell/themes/dashboard_style.h"

namespace tidewatch {

/// The style sheet of menus in the colours of a theme.
[[nodiscard]] QString menuStyleSheet(const DashboardStyle& style);

/// The style sheet of the bubble that tells something beside the clock.
[[nodiscard]] QString hintStyleSheet(const DashboardStyle& style);

/// The colours of dialogs that the toolkit makes.
[[nodiscard]] QPalette dialogPalette(const DashboardStyle& style);

/// The style sheet of dialogs.
[[nodiscard]] QString dialogStyleSheet(const DashboardStyle& style);

}  // namespace tidewatch
