// The widgets' file, compared with a strict parser.

#include <optional>
#include <string>

#include "shell/widgets/widget_state.h"
#include "tests/fuzz/fuzz_target.h"
#include "tests/fuzz/strict_json.h"

namespace tidewatch::fuzz {
namespace {

/// The first member of that name as a number; nullopt if it is null or absent.
std::optional<double> numberOf(const Json& json, std::string_view key) {
    const auto found = json.all(key);
    const auto* number = found.empty() ? nullptr : found.front()->as<Json::Number>();
    return number ? realOf(*number) : std::optional<double>();
}

void requireState(const Json& json, const WidgetState& state) {
    require(numberOf(json, "scale") == state.scale, "the scale is read as it stands");
    require(numberOf(json, "x") == state.x && numberOf(json, "y") == state.y, "so are the coordinates");
    const auto visible = json.all("visible");
    require(!visible.empty() && visible.front()->as<bool>() && *visible.front()->as<bool>() == state.visible,
            "a widget is visible only if the file says so");
}

}  // namespace

void check(std::string_view input) {
    const auto states = parseWidgetStates(std::string(input));
    if (!states) return;
    const auto json = parseStrictly(input);
    require(json.has_value(), "what is not JSON is refused");
    for (const auto& [kind, state] : *states) {
        const auto found = json->all(rawValue(kind));
        require(!found.empty(), "a widget that is read is in the file");
        requireState(*found.back(), state);
    }
    const auto written = serializeWidgetStates(*states);
    require(parseStrictly(written).has_value(), "what is written is JSON");
    require(parseWidgetStates(written) == states, "what is written reads back the same");
}

}  // namespace tidewatch::fuzz
