#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

#include "shell/themes/dashboard_style.h"

namespace tidewatch {

/// The style sheet of menus in a theme's colours.
[[nodiscard]] QString menuStyleSheet(const DashboardStyle& style);

/// The colours of a menu's symbols, both opaque.
struct MenuInk {
    QColor symbol;
    QColor ground;  ///< of the menu
};

[[nodiscard]] MenuInk menuInk(const DashboardStyle& style);

/// The style sheet of the hint beside the clock.
[[nodiscard]] QString hintStyleSheet(const DashboardStyle& style);

/// The palette of the toolkit's own dialogs.
[[nodiscard]] QPalette dialogPalette(const DashboardStyle& style);

/// The style sheet of dialogs.
[[nodiscard]] QString dialogStyleSheet(const DashboardStyle& style);

}  // namespace tidewatch
