#include "shell/status_title.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace tidewatch {

namespace {

constexpr std::size_t longestName = 12;
constexpr std::size_t keptOfLongName = 11;
constexpr double lowBelow = 0.3;
constexpr double middlingBelow = 0.6;

bool startsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

/// The bytes that the first `count` characters of a UTF-8 text take.
std::size_t lengthOfFirst(std::size_t count, std::string_view text) {
    std::size_t characters = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (startsCharacter(text[i]) && characters++ == count) return i;
    }
    return text.size();
}

std::string shortened(const std::string& name) {
    const auto characters = std::count_if(name.begin(), name.end(), startsCharacter);
    if (static_cast<std::size_t>(characters) <= longestName) return name;
    return name.substr(0, lengthOfFirst(keptOfLongName, name)) + "…";
}

StatusTitle::Mood mood(const ProductivityScore& score) {
    if (!score.isTelling()) return StatusTitle::Mood::none;
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
