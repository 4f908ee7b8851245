#pragma once

#include <span>
#include <string_view>

#include "projects/project.h"

namespace tidewatch {

/// The colours that projects get, in the order in which they are given out.
[[nodiscard]] std::span<const std::string_view> projectColors();

/// The colour for the project to come: the first that none of `projects`, archived ones included, has; once
/// all are taken they are given out in turn.
[[nodiscard]] std::string_view nextProjectColor(std::span<const Project> projects);

}  // namespace tidewatch
