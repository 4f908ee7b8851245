#pragma once

#include <optional>
#include <string>

#include "classification/productivity_score.h"
#include "projects/project.h"

namespace tidewatch {

/// The status item's text, and how productive the day is.
struct StatusTitle {
    enum class Mood {
        none,      ///< no significant score yet
        low,       ///< a score below 0.3
        middling,  ///< below 0.6
        good,
    };

    std::string figure;   ///< the day's productivity, or a dash
    std::string project;  ///< the active project's name, one short line; empty without one
    Mood mood = Mood::none;

    /// The figure, and the project after a dot.
    [[nodiscard]] std::string text() const { return project.empty() ? figure : figure + " · " + project; }

    bool operator==(const StatusTitle&) const = default;
};

/// Names of 13 or more characters (grapheme clusters) are shortened to 11 and an ellipsis.
[[nodiscard]] StatusTitle statusTitle(const ProductivityScore& today, const std::optional<Project>& active);

}  // namespace tidewatch
