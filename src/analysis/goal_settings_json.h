#pragma once

#include <optional>
#include <string>

#include "analysis/goal_settings.h"

namespace tidewatch {

/// Reads the text of a goals file: a JSON object with a number or a boolean, as the field is, for each of
/// the five fields under its name. Nothing if the text is not JSON or one of them is missing, of another
/// type, or a number beyond a million either way: true is no number and 1 no boolean. Other keys are passed
/// over; of equal keys the last counts.
[[nodiscard]] std::optional<GoalSettings> parseGoalSettings(std::string text);

/// The exact text of a goals file, in the form of all data files. Nothing if one of the numbers is not
/// finite, which JSON cannot say.
[[nodiscard]] std::optional<std::string> serializeGoalSettings(const GoalSettings& settings);

}  // namespace tidewatch
