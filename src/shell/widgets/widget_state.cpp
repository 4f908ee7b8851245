#include "shell/widgets/widget_state.h"

#include <fmt/format.h>

#include <iterator>
#include <string_view>
#include <utility>

#include "core/json_document.h"

namespace tidewatch {
namespace {

namespace json = simdjson::dom;

constexpr std::string_view visibleKey = "visible";
constexpr std::string_view xKey = "x";
constexpr std::string_view yKey = "y";
constexpr std::string_view scaleKey = "scale";

// Returns whether the member is absent, null or a number.
bool readCoordinate(json::element state, std::string_view key, std::optional<double>& coordinate) {
    json::element value;
    if (state.at_key(key).get(value) != simdjson::SUCCESS || value.is_null()) return true;
    return value.get_double().get(coordinate.emplace()) == simdjson::SUCCESS;
}

std::optional<WidgetState> readState(json::element value) {
    WidgetState state;
    const bool valid = value.at_key(visibleKey).get_bool().get(state.visible) == simdjson::SUCCESS &&
                       value.at_key(scaleKey).get_double().get(state.scale) == simdjson::SUCCESS &&
                       readCoordinate(value, xKey, state.x) && readCoordinate(value, yKey, state.y);
    return valid ? std::optional(state) : std::nullopt;
}

void appendNumber(std::string& out, std::string_view key, std::optional<double> value) {
    if (value) fmt::format_to(std::back_inserter(out), R"(,"{}":{})", key, *value);
}

}  // namespace

std::optional<WidgetStates> parseWidgetStates(std::string text) {
    const auto document = JsonDocument::parse(std::move(text));
    json::object widgets;
    if (!document || document->root().get_object().get(widgets) != simdjson::SUCCESS) return std::nullopt;
    WidgetStates states;
    for (const auto& [key, value] : widgets) {
        const auto state = readState(value);
        if (!state) return std::nullopt;
        if (const auto kind = widgetKind(key)) states.insert_or_assign(*kind, *state);
    }
    return states;
}

std::string serializeWidgetStates(const WidgetStates& states) {
    std::string out = "{";
    for (const auto& [kind, state] : states) {
        if (out.size() > 1) out += ',';
        fmt::format_to(std::back_inserter(out), R"("{}":{{"{}":{})", rawValue(kind), visibleKey,
                       state.visible);
        appendNumber(out, xKey, state.x);
        appendNumber(out, yKey, state.y);
        appendNumber(out, scaleKey, state.scale);
        out += '}';
    }
    return out + '}';
}

}  // namespace tidewatch
