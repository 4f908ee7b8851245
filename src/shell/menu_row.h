#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tidewatch {

struct MenuRow;
using MenuRows = std::vector<MenuRow>;

/// One row of a menu: a separator (no title), a submenu (children), a command (action) or, with neither, a
/// disabled row that only tells something.
struct MenuRow {
    std::string title{};
    bool checked = false;
    std::optional<char> keyEquivalent{};
    std::function<void()> action{};
    MenuRows children{};

    [[nodiscard]] bool isSeparator() const { return title.empty(); }
    [[nodiscard]] bool isEnabled() const { return action || !children.empty(); }
};

}  // namespace tidewatch
