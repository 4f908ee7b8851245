#pragma once

#include <map>
#include <optional>
#include <string>

#include "platform/api/screens.h"
#include "shell/widgets/widget_kind.h"

namespace tidewatch {

/// What is stored of a widget.
struct WidgetState {
    bool visible = false;
    std::optional<double> x{};  ///< desktop points, of the top left corner
    std::optional<double> y{};
    double scale = 1;  ///< as stored, unlimited

    /// Its position; nullopt unless both coordinates are stored.
    [[nodiscard]] std::optional<platform::Point> place() const {
        return x && y ? std::optional(platform::Point{*x, *y}) : std::nullopt;
    }

    bool operator==(const WidgetState&) const = default;
};

using WidgetStates = std::map<WidgetKind, WidgetState>;

/// Parses "widgets.json": a JSON object from raw values of kinds to states. Returns nullopt if it is anything
/// else, or if one value lacks "visible" or "scale" or has a member of another type. Unknown kinds and
/// members are ignored; of duplicate kinds the last one counts.
[[nodiscard]] std::optional<WidgetStates> parseWidgetStates(std::string text);

/// The file's content, on one line. Every number must be finite.
[[nodiscard]] std::string serializeWidgetStates(const WidgetStates& states);

}  // namespace tidewatch
