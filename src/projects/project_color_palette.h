#pragma once

#include <span>
#include <string_view>

#include "projects/project.h"

namespace tidewatch {

/// The colours of new projects, in order of assignment.
[[nodiscard]] std::span<const std::string_view> projectColors();

/// The colour for a new project: the first that none of `projects`, archived ones included, uses; once all
/// are used they are assigned in turn.
[[nodiscard]] std::string_view nextProjectColor(std::span<const Project> projects);

}  // namespace tidewatch
