#pragma once

#include "projects/project_store.h"
#include "shell/export_commands.h"
#include "shell/menu_row.h"
#include "shell/project_commands.h"

namespace tidewatch {

/// The submenu of the current projects. The commands must outlive the row.
[[nodiscard]] MenuRow projectMenu(const ProjectStore& projects, ProjectCommands& commands,
                                  ExportCommands& exports);

}  // namespace tidewatch
