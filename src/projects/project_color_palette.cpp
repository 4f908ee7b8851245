#include "projects/project_color_palette.h"

#include <algorithm>
#include <array>

namespace tidewatch {
namespace {

constexpr std::array<std::string_view, 8> colors{
    "#7BD88F", "#6B9ED4", "#E8C458", "#D15757", "#B08FE5", "#5BC9B8", "#E59B5B", "#D88FB7",
};

}  // namespace

std::span<const std::string_view> projectColors() {
    return colors;
}

std::string_view nextProjectColor(std::span<const Project> projects) {
    const auto isFree = [&](std::string_view color) {
        return std::ranges::find(projects, color, &Project::colorHex) == projects.end();
    };
    const auto* free = std::ranges::find_if(colors, isFree);
    return free == colors.end() ? colors[projects.size() % colors.size()] : *free;
}

}  // namespace tidewatch
