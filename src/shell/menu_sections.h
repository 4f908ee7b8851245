#pragma once

#include <functional>

#include "classification/productivity_score.h"
#include "core/daily_store.h"
#include "core/settings.h"
#include "core/timer_engine.h"
#include "platform/api/input_activity.h"
#include "platform/api/login_item.h"
#include "projects/project_store.h"
#include "shell/export_commands.h"
#include "shell/project_commands.h"
#include "shell/status_commands.h"
#include "shell/status_menu.h"
#include "shell/themes/theme_controller.h"
#include "shell/themes/theme_registry.h"
#include "shell/widgets/widget_manager.h"

namespace tidewatch {

// The arguments must outlive the section, and commands also its rows.

/// How productive today has been.
[[nodiscard]] MenuSection scoreSection(const DailyStore& days, const ProductivityScorer& scorer);

/// The current counts, and what the session prevents the program from seeing.
[[nodiscard]] MenuSection countingSection(const TimerEngine& engine,
                                          const platform::InputActivity& inputActivity);

/// Today's time by tier.
[[nodiscard]] MenuSection tierSection(const DailyStore& days, const ProductivityScorer& scorer);

/// Theme and size of the floating clock.
[[nodiscard]] MenuSection appearanceSection(const ThemeRegistry& themes, const ThemeController& theme,
                                            const Settings& settings, StatusCommands& commands);

/// The idle threshold and the start of the day.
[[nodiscard]] MenuSection countingRuleSection(const Settings& settings, StatusCommands& commands);

/// The submenu of projects.
[[nodiscard]] MenuSection projectSection(const ProjectStore& projects, ProjectCommands& commands,
                                         ExportCommands& exports);

/// The submenu of widgets. `manager` is called for each use.
[[nodiscard]] MenuSection widgetSection(std::function<WidgetManager&()> manager);

/// Showing, hiding and resetting the floating clock.
[[nodiscard]] MenuSection clockSection(const Settings& settings, StatusCommands& commands);

/// Statistics, data file and exports.
[[nodiscard]] MenuSection recordSection(StatusCommands& commands, ExportCommands& exports);

/// Whether the program starts with the session.
[[nodiscard]] MenuSection loginSection(const platform::LoginItem& loginItem, StatusCommands& commands);

/// Quitting.
[[nodiscard]] MenuSection endSection(StatusCommands& commands);

}  // namespace tidewatch
