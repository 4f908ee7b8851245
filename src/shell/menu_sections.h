#pragma once

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

namespace tidewatch {

// What a section is made from must outlive it, and commands also the rows that it makes.

/// How productive today has been.
[[nodiscard]] MenuSection scoreSection(const DailyStore& days, const ProductivityScorer& scorer);

/// What is counted, and what the session keeps the program from noticing.
[[nodiscard]] MenuSection countingSection(const TimerEngine& engine,
                                          const platform::InputActivity& inputActivity);

/// Today's time by tier.
[[nodiscard]] MenuSection tierSection(const DailyStore& days, const ProductivityScorer& scorer);

/// Theme and size of the floating clock.
[[nodiscard]] MenuSection appearanceSection(const ThemeRegistry& themes, const ThemeController& theme,
                                            const Settings& settings, StatusCommands& commands);

/// From when on the user is away, and when a day begins.
[[nodiscard]] MenuSection countingRuleSection(const Settings& settings, StatusCommands& commands);

/// The submenu of projects.
[[nodiscard]] MenuSection projectSection(const ProjectStore& projects, ProjectCommands& commands,
                                         ExportCommands& exports);

/// Whether the floating clock is on the screen, and its return to 0.
[[nodiscard]] MenuSection clockSection(const Settings& settings, StatusCommands& commands);

/// The record, to look at and to take away.
[[nodiscard]] MenuSection recordSection(StatusCommands& commands, ExportCommands& exports);

/// Whether the program starts with the session.
[[nodiscard]] MenuSection loginSection(const platform::LoginItem& loginItem, StatusCommands& commands);

/// The end of the program.
[[nodiscard]] MenuSection endSection(StatusCommands& commands);

}  // namespace tidewatch
