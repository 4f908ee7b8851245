#include "shell/status_title.h"

#include <cstddef>

#include "base/characters.h"

namespace tidewatch {

namespace {

constexpr std::size_t maxNameLength = 12;
constexpr std::size_t keptOfLongName = 11;
constexpr double lowBelow = 0.3;
constexpr double middlingBelow = 0.6;

std::string shortened(const std::string& name) {
    auto line = onOneLine(name);
    if (firstCharacters(maxNameLength, line).size() == line.size()) return line;
    return std::string(firstCharacters(keptOfLongName, line)) + "…";
}

StatusTitle::Mood mood(const ProductivityScore& score) {
    if (!score.isSignificant()) return StatusTitle::Mood::none;
    if (score.score() < lowBelow) return StatusTitle::Mood::low;
    return score.score() < middlingBelow ? StatusTitle::Mood::middling : StatusTitle::Mood::good;
}

}  // namespace

StatusTitle statusTitle(const ProductivityScore& today, const std::optional<Project>& active) {
    return {.figure = today.displayString(),
            .project = active ? shortened(active->name) : "",
            .mood = mood(today)};
}

}  // namespace tidewatch
