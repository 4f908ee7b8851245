#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "projects/color_hex.h"

namespace tidewatch {

struct MenuRow;
using MenuRows = std::vector<MenuRow>;

/// One row of a menu: a separator, a submenu (children), a command (action) or, with neither, a disabled
/// informational row.
struct MenuRow {
    std::string title{};  ///< user-defined names may be empty, or of any length
    bool checked = false;
    std::optional<char> keyEquivalent{};
    std::optional<RgbColor> swatch{};  ///< a dot of this colour before the title
    std::string_view symbol{};         ///< one of the symbol table before the title; empty for none
    std::function<void()> action{};
    MenuRows children{};
    bool separates = false;  ///< a separator, without any of the above

    [[nodiscard]] static MenuRow separator() { return {.separates = true}; }
    [[nodiscard]] bool isEnabled() const { return action || !children.empty(); }
};

}  // namespace tidewatch
