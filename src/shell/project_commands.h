#pragma once

#include <optional>
#include <string_view>

#include "base/uuid.h"
#include "projects/project_store.h"
#include "shell/surfaces.h"

namespace tidewatch {

/// The commands of the project menu. A command for a project that no longer exists has no effect. Main thread
/// only.
class ProjectCommands final {
public:
    /// Both must outlive this object.
    ProjectCommands(ProjectStore& projects, Dialogs& dialogs) : projects_(projects), dialogs_(dialogs) {}

    /// Nullopt deactivates the active project.
    void switchProject(std::optional<Uuid> id);

    /// Asks for a name. The new project becomes the active one at once.
    void newProject();
    void renameProject(const Uuid& id);
    void setProjectColor(std::string_view hex, const Uuid& id);
    void archiveProject(const Uuid& id);
    void unarchiveProject(const Uuid& id);

    /// Asks for confirmation.
    void deleteProject(const Uuid& id);

private:
    ProjectStore& projects_;
    Dialogs& dialogs_;
};

}  // namespace tidewatch
