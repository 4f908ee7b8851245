#pragma once

#include <QString>
#include <array>
#include <string_view>

#include "analysis/goal_settings.h"

namespace tidewatch {

/// The range and step of one goal, in the displayed unit.
struct GoalStep {
    std::string_view id;
    std::string_view title;
    double GoalSettings::*goal;
    double shownPerStored;  ///< displayed per stored unit: 1 for hours, 100 for fractions shown in per cent
    double min;
    double max;
    double step;

    /// The displayed value, rounded to remove floating-point noise.
    [[nodiscard]] double shown(const GoalSettings& settings) const;
    /// "6.0h" or "80%".
    [[nodiscard]] QString valueText(const GoalSettings& settings) const;
    /// The goal one step up (1) or down (-1), clamped to the range.
    [[nodiscard]] GoalSettings stepped(GoalSettings settings, int direction) const;
};

/// In display order.
[[nodiscard]] const std::array<GoalStep, 4>& goalSteps();

}  // namespace tidewatch
