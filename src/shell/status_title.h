#pragma once

#include <string>

namespace tidewatch {

/// What the status item says, and how well the day is going.
struct StatusTitle {
    enum class Mood { none, low, middling, good };

    std::string figure;   ///< the day's productivity, or a dash
    std::string project;  ///< the active project's name as shortened for the item; empty without one
    Mood mood = Mood::none;

    /// The whole text: the figure, and the project after a dot.
    [[nodiscard]] std::string text() const { return project.empty() ? figure : figure + " · " + project; }

    bool operator==(const StatusTitle&) const = default;
};

}  // namespace tidewatch
