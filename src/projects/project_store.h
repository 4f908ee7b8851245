#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/signal.h"
#include "base/uuid.h"
#include "core/broadcaster.h"
#include "core/kept_file.h"
#include "platform/api/file_system.h"
#include "platform/api/log.h"
#include "platform/api/randomness.h"
#include "projects/project.h"
#include "projects/project_file.h"

namespace tidewatch {

/// The user's projects and which of them is being worked on ("projects.json"). Main thread only.
///
/// Each change writes the file at once, then announces itself through `changed`, then to all windows as
/// ProjectsChanged. If the file cannot be written the log tells, and the change stands in memory.
class ProjectStore final {
public:
    /// Reads the file; one that is missing or cannot be read to the last value is no projects at all.
    /// All four must outlive it.
    ProjectStore(platform::FileSystem& files, platform::Log& log, platform::Randomness& randomness,
                 const Broadcaster& broadcaster);

    /// In the order of creation.
    [[nodiscard]] const std::vector<Project>& projects() const { return list_.projects; }

    /// Need not be the id of a project.
    [[nodiscard]] std::optional<Uuid> activeProjectId() const { return list_.activeId; }

    /// Nothing if no project is active or the active id is in the list no more.
    [[nodiscard]] std::optional<Project> activeProject() const;

    [[nodiscard]] std::optional<Project> project(const Uuid& id) const;

    /// Those that are not archived, in the order of creation.
    [[nodiscard]] std::vector<Project> activeProjects() const;
    [[nodiscard]] std::vector<Project> archivedProjects() const;

    /// Appends a project with the next free colour; it does not become the active one. `name` is taken as it
    /// is.
    Project addProject(std::string_view name);

    /// `id` may be any; nothing stands for no project.
    void setActive(std::optional<Uuid> id);

    /// Nothing happens if there is no such project or if nothing remains of the name without the white space
    /// around it.
    void renameProject(const Uuid& id, std::string_view newName);

    /// `hex` is kept as it is. Nothing happens if there is no such project.
    void setColor(std::string_view hex, const Uuid& id);

    enum class Archived { no, yes };

    /// An active project that is archived is active no more. Nothing happens if there is no such project.
    void setArchived(Archived archived, const Uuid& id);

    /// Removes it from the list; the seconds booked to it stay where they are. An active one is active no
    /// more.
    void deleteProject(const Uuid& id);

    /// Lets `disk` write the file again if it has gone missing. This object must outlive `disk`.
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
    KeptFile file_;
    ProjectList list_;
};

}  // namespace tidewatch
