#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "projects/color_hex.h"

namespace tidewatch {

struct MenuRow;
using MenuRows = std::vector<MenuRow>;

/// One row of a menu: a separator (no title), a submenu (children), a command (action) or, with neither, a
/// disabled row that only tells something.
struct MenuRow {
    std::string title{};
    bool checked = false;
    std::optional<char> keyEquivalent{};
    std::optional<RgbColor> swatch{};  ///< a dot of this colour before the title
    std::function<void()> action{};
    MenuRows children{};

    [[nodiscard]] static MenuRow separator() { return {}; }
    [[nodiscard]] bool isSeparator() const { return title.empty(); }
    [[nodiscard]] bool isEnabled() const { return action || !children.empty(); }
};

}  // namespace tidewatch
