#include "shell/status_menu.h"

namespace tidewatch {

MenuRows buildStatusMenu(const MenuGroups& groups) {
    MenuRows rows;
    for (const auto& group : groups) {
        if (!rows.empty()) rows.push_back(MenuRow::separator());
        for (const auto& section : group) section(rows);
    }
    return rows;
}

}  // namespace tidewatch
