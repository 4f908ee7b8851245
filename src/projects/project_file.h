#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/uuid.h"
#include "projects/project.h"

namespace tidewatch {

/// All projects in creation order, and the active one.
struct ProjectList {
    std::vector<Project> projects;
    std::optional<Uuid> activeId;  ///< may not be in the list
    bool operator==(const ProjectList&) const = default;
};

/// The text of "projects.json": an object with "activeProjectID", omitted if no project is active, and
/// "projects", an array of objects with "archived", "colorHex", "id" and "name".
[[nodiscard]] std::string serializeProjects(const ProjectList& list);

/// Parses such a text strictly: returns nullopt if it is not JSON, or if anything is missing or of another
/// type. "activeProjectID" may be missing or null; other keys are ignored.
[[nodiscard]] std::optional<ProjectList> parseProjects(std::string text);

}  // namespace tidewatch
