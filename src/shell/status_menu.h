#pragma once

#include <functional>
#include <vector>

#include "shell/menu_row.h"

namespace tidewatch {

/// A feature's part of the status menu: appends its current rows.
using MenuSection = std::function<void(MenuRows&)>;

/// The status menu from top to bottom, with separators between groups.
using MenuGroups = std::vector<std::vector<MenuSection>>;

/// Builds the current status menu.
[[nodiscard]] MenuRows buildStatusMenu(const MenuGroups& groups);

}  // namespace tidewatch
