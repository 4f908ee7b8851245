#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/signal.h"
#include "base/uuid.h"
#include "core/broadcaster.h"
#include "core/restorable_file.h"
#include "platform/api/file_system.h"
#include "platform/api/log.h"
#include "platform/api/randomness.h"
#include "projects/project.h"
#include "projects/project_file.h"

namespace tidewatch {

/// The user's projects and the active one ("projects.json"). Main thread only.
///
/// Each change writes the file at once, then emits `changed`, then broadcasts ProjectsChanged. A failed write
/// is logged, and the change is kept in memory.
class ProjectStore final {
public:
    /// Reads the file; a missing or invalid one yields no projects. All four must outlive it.
    ProjectStore(platform::FileSystem& files, platform::Log& log, platform::Randomness& randomness,
                 const Broadcaster& broadcaster);

    /// In creation order.
    [[nodiscard]] const std::vector<Project>& projects() const { return list_.projects; }

    /// May not be the id of an existing project.
    [[nodiscard]] std::optional<Uuid> activeProjectId() const { return list_.activeId; }

    /// Returns nullopt if no project is active or the active id does not exist.
    [[nodiscard]] std::optional<Project> activeProject() const;

    [[nodiscard]] std::optional<Project> project(const Uuid& id) const;

    /// Projects that are not archived, in creation order.
    [[nodiscard]] std::vector<Project> activeProjects() const;
    [[nodiscard]] std::vector<Project> archivedProjects() const;

    /// Appends a project with the next free colour, without activating it. `name` is not validated.
    Project addProject(std::string_view name);

    /// `id` is not validated; nullopt for no project.
    void setActive(std::optional<Uuid> id);

    /// No effect if there is no such project or if the trimmed name is empty.
    void renameProject(const Uuid& id, std::string_view newName);

    /// `hex` is not validated. No effect if there is no such project.
    void setColor(std::string_view hex, const Uuid& id);

    enum class Archived { no, yes };

    /// Archiving the active project deactivates it. No effect if there is no such project.
    void setArchived(Archived archived, const Uuid& id);

    /// Removes it from the list; its booked seconds are kept. Deleting the active project deactivates it.
    void deleteProject(const Uuid& id);

    /// Rewrites the file on `disk` if it is missing. This object must outlive `disk`.
    void restoreMissingOn(JobQueue& disk) { file_.restoreOn(disk); }

    [[nodiscard]] const std::string& dataFilePath() const { return file_.path(); }

    Signal<> changed;

private:
    [[nodiscard]] Project* find(const Uuid& id);
    [[nodiscard]] std::vector<Project> projectsThatAre(Archived archived) const;
    void deactivate(const Uuid& id);
    void finishChange();
    void save();

    platform::Randomness& randomness_;
    const Broadcaster& broadcaster_;
    RestorableFile file_;
    ProjectList list_;
};

}  // namespace tidewatch
