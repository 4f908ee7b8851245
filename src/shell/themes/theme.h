#pragma once

#include <optional>
#include <string>

#include "shell/themes/color.h"
#include "shell/themes/dashboard_style.h"
#include "shell/themes/font_spec.h"

namespace tidewatch {

/// The background of the floating clock's panel.
enum class PanelBackground { ochre, editorial, minimal, hacker, liquid };

/// Points of the unscaled drawing.
struct PanelSize {
    double width = 0;
    double height = 0;
    bool operator==(const PanelSize&) const = default;
};

/// Points of the unscaled drawing.
struct PanelPadding {
    double top = 0;
    double leading = 0;
    double bottom = 0;
    double trailing = 0;
    bool operator==(const PanelPadding&) const = default;
};

/// The appearance of the floating clock and the colours of the dashboard. Immutable.
struct Theme {
    std::string id;           ///< stored in the settings
    std::string displayName;  ///< shown in the menu
    PanelSize size;
    double cornerRadius = 0;
    PanelPadding padding;
    PanelBackground background = PanelBackground::ochre;
    Color primaryText;    ///< the digits
    Color secondaryText;  ///< label and session line
    Color accentActive;   ///< status dot while active
    Color accentIdle;     ///< status dot while idle
    std::optional<std::string> label;
    FontSpec labelFont;
    double labelTracking = 0;  ///< points between the label's letters
    FontSpec digitFont;
    bool showsStatusDot = false;
    bool showsDailyTotal = false;
    FontSpec dailyTotalFont;
    DashboardStyle dashboard;
};

}  // namespace tidewatch
