#pragma once

#include <QString>
#include <array>
#include <string_view>

#include "analysis/goal_settings.h"

namespace tidewatch {

/// How one goal is set: what it may be, and by how much a step changes it, in the unit that is shown.
struct GoalStep {
    std::string_view id;
    std::string_view title;
    double GoalSettings::*goal;
    double shownPerStored;  ///< hours are shown as they are stored, a fraction in per cent
    double min;
    double max;
    double step;

    /// Without the crumbs that per cents of a fraction leave.
    [[nodiscard]] double shown(const GoalSettings& settings) const;
    /// "6.0h" or "80%".
    [[nodiscard]] QString valueText(const GoalSettings& settings) const;
    /// The goal a step further up (1) or down (-1), kept within the range.
    [[nodiscard]] GoalSettings stepped(GoalSettings settings, int direction) const;
};

/// In the order in which they are shown.
[[nodiscard]] const std::array<GoalStep, 4>& goalSteps();

}  // namespace tidewatch
