#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/uuid.h"
#include "projects/project.h"

namespace tidewatch {

/// All projects in the order of their creation, and which one is being worked on.
struct ProjectList {
    std::vector<Project> projects;
    std::optional<Uuid> activeId;  ///< need not be one of the list
    bool operator==(const ProjectList&) const = default;
};

/// The text of "projects.json": an object with "activeProjectID", left out without an active project, and
/// "projects", an array of objects with "archived", "colorHex", "id" and "name".
[[nodiscard]] std::string serializeProjects(const ProjectList& list);

/// Reads such a text, strictly: nothing if it is not JSON, or if anything in it is missing or of another
/// type. "activeProjectID" may be missing or null, and keys beside those named are passed over.
[[nodiscard]] std::optional<ProjectList> parseProjects(std::string text);

}  // namespace tidewatch
