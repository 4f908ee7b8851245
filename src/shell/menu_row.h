#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "projects/color_hex.h"

namespace tidewatch {

struct MenuRow;
using MenuRows = std::vector<MenuRow>;

/// One row of a menu: a separator, a submenu (children), a command (action) or, with neither, a disabled row
/// that only tells something.
struct MenuRow {
    std::string title{};  ///< what a user named may be empty, or of any length
    bool checked = false;
    std::optional<char> keyEquivalent{};
    std::optional<RgbColor> swatch{};  ///< a dot of this colour before the title
    std::function<void()> action{};
    MenuRows children{};
    bool separates = false;  ///< a line between other rows, with nothing of the above

    [[nodiscard]] static MenuRow separator() { return {.separates = true}; }
    [[nodiscard]] bool isEnabled() const { return action || !children.empty(); }
};

}  // namespace tidewatch
