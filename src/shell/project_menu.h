#pragma once

#include "projects/project_store.h"
#include "shell/menu_row.h"
#include "shell/project_commands.h"

namespace tidewatch {

/// The submenu of projects as they stand at this moment. `commands` must outlive the row.
[[nodiscard]] MenuRow projectMenu(const ProjectStore& projects, ProjectCommands& commands);

}  // namespace tidewatch
