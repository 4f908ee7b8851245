// The goals file, compared with a strict parser.

#include <string>

#include "analysis/goal_settings_json.h"
#include "tests/fuzz/fuzz_target.h"
#include "tests/fuzz/strict_json.h"

namespace tidewatch::fuzz {
namespace {

void requireNumber(const Json& json, std::string_view key, double value) {
    const auto found = json.all(key);
    const auto* number = found.empty() ? nullptr : found.back()->as<Json::Number>();
    require(number && realOf(*number) == value, "a number is read as it stands, the last one given");
}

}  // namespace

void check(std::string_view input) {
    const auto goals = parseGoalSettings(std::string(input));
    if (!goals) return;
    const auto json = parseStrictly(input);
    require(json.has_value(), "what is not JSON is refused");
    requireNumber(*json, "dailyHours", goals->dailyHours);
    requireNumber(*json, "dailyProductivity", goals->dailyProductivity);
    requireNumber(*json, "monthlyHours", goals->monthlyHours);
    requireNumber(*json, "weeklyHours", goals->weeklyHours);
    const auto wished = json->all("notificationsEnabled");
    require(!wished.empty() && wished.back()->as<bool>() &&
                *wished.back()->as<bool>() == goals->notificationsEnabled,
            "the wish for messages is read as it stands, the last one given");

    const auto written = serializeGoalSettings(*goals);
    require(written.has_value(), "what was read is finite");
    require(parseStrictly(*written).has_value(), "what is written is JSON");
    require(parseGoalSettings(*written) == goals, "what is written reads back the same");
}

}  // namespace tidewatch::fuzz
