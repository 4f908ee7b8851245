#pragma once

#include <optional>
#include <string>

#include "classification/productivity_score.h"
#include "projects/project.h"

namespace tidewatch {

/// What the status item says, and how well the day is going.
struct StatusTitle {
    enum class Mood {
        none,      ///< nothing can be said yet
        low,       ///< a score below 0.3
        middling,  ///< below 0.6
        good,
    };

    std::string figure;   ///< the day's productivity, or a dash
    std::string project;  ///< the active project's name, one short line; empty without one
    Mood mood = Mood::none;

    /// The whole text: the figure, and the project after a dot.
    [[nodiscard]] std::string text() const { return project.empty() ? figure : figure + " · " + project; }

    bool operator==(const StatusTitle&) const = default;
};

/// Names of 13 characters or more, as a reader counts them, are shortened to their first 11 and an ellipsis.
[[nodiscard]] StatusTitle statusTitle(const ProductivityScore& today, const std::optional<Project>& active);

}  // namespace tidewatch
