#pragma once

#include "platform/api/input_activity.h"
#include "platform/api/login_item.h"
#include "shell/export_commands.h"
#include "shell/menu_row.h"
#include "shell/project_commands.h"
#include "shell/services.h"
#include "shell/status_commands.h"
#include "shell/themes/theme_controller.h"
#include "shell/themes/theme_registry.h"

namespace tidewatch {

/// What the status menu is made from; all of it must outlive the rows that are made.
struct StatusMenuSources {
    const Services& services;
    const ThemeRegistry& themes;
    const ThemeController& theme;
    const platform::InputActivity& inputActivity;
    const platform::LoginItem& loginItem;
    StatusCommands& commands;
    ProjectCommands& projectCommands;
    ExportCommands& exportCommands;
};

/// The status menu as it stands at this moment.
[[nodiscard]] MenuRows buildStatusMenu(const StatusMenuSources& sources);

}  // namespace tidewatch
