#pragma once

#include "classification/productivity_score.h"
#include "core/daily_store.h"
#include "core/settings.h"
#include "core/timer_engine.h"
#include "platform/api/input_activity.h"
#include "platform/api/login_item.h"
#include "projects/project_store.h"
#include "shell/export_commands.h"
#include "shell/menu_row.h"
#include "shell/project_commands.h"
#include "shell/status_commands.h"
#include "shell/themes/theme_controller.h"
#include "shell/themes/theme_registry.h"

namespace tidewatch {

/// What the status menu is made from; all of it must outlive the rows that are made.
struct StatusMenuSources {
    const Settings& settings;
    const TimerEngine& engine;
    const DailyStore& days;
    const ProductivityScorer& scorer;
    const ProjectStore& projects;
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
