#pragma once

#include <optional>
#include <string>

#include "analysis/goal_settings.h"

namespace tidewatch {

/// Parses the text of a goals file: a JSON object with a number or boolean for each of the five fields.
/// Returns nullopt if the text is not JSON, or if a field is missing, of another type (true is no number, 1
/// no boolean), or a number beyond ±1,000,000. Other keys are ignored; of duplicate keys the last wins.
[[nodiscard]] std::optional<GoalSettings> parseGoalSettings(std::string text);

/// The exact text of a goals file, in the format of all data files. Returns nullopt if a number is not
/// finite, which JSON cannot represent.
[[nodiscard]] std::optional<std::string> serializeGoalSettings(const GoalSettings& settings);

}  // namespace tidewatch
