#pragma once

#include <functional>
#include <vector>

#include "shell/menu_row.h"

namespace tidewatch {

/// A feature's part of the status menu: appends its rows as they stand at this moment.
using MenuSection = std::function<void(MenuRows&)>;

/// The status menu from top to bottom: a line between two groups, none within one.
using MenuGroups = std::vector<std::vector<MenuSection>>;

/// The status menu as it stands at this moment.
[[nodiscard]] MenuRows buildStatusMenu(const MenuGroups& groups);

}  // namespace tidewatch
