#include "analysis/views/goal_steps.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "ui/texts/display_text.h"

namespace tidewatch {
namespace {

constexpr std::array<GoalStep, 4> table = {{
    {"dailyHours", "Horas por día", &GoalSettings::dailyHours, 1, 1, 16, 0.5},
    {"dailyProductivity", "Productividad diaria", &GoalSettings::dailyProductivity, 100, 30, 100, 5},
    {"weeklyHours", "Horas por semana", &GoalSettings::weeklyHours, 1, 5, 80, 1},
    {"monthlyHours", "Horas por mes", &GoalSettings::monthlyHours, 1, 20, 320, 5},
}};

}  // namespace

double GoalStep::shown(const GoalSettings& settings) const {
    constexpr double crumbs = 1e6;
    return std::round(settings.*goal * shownPerStored * crumbs) / crumbs;
}

QString GoalStep::valueText(const GoalSettings& settings) const {
    if (shownPerStored != 1) return percentText(settings.*goal);
    return text(fmt::format("{:.1f}h", shown(settings)));
}

GoalSettings GoalStep::stepped(GoalSettings settings, int direction) const {
    settings.*goal = std::clamp(shown(settings) + direction * step, min, max) / shownPerStored;
    return settings;
}

const std::array<GoalStep, 4>& goalSteps() {
    return table;
}

}  // namespace tidewatch
