#include "projects/project_color_palette.h"

#include <gmock/gmock.h>

#include <vector>

namespace tidewatch {
namespace {

using testing::ElementsAre;

std::vector<Project> projectsWith(std::initializer_list<const char*> colors) {
    std::vector<Project> projects;
    for (const auto* color : colors) projects.push_back({{}, "a", color, false});
    return projects;
}

std::vector<Project> projectsWithTheWholePalette() {
    std::vector<Project> projects;
    for (const auto color : projectColors()) projects.push_back({{}, "a", std::string(color), false});
    return projects;
}

TEST(ProjectColorPaletteTest, HoldsEightColours) {
    EXPECT_THAT(projectColors(), ElementsAre("#7BD88F", "#6B9ED4", "#E8C458", "#D15757", "#B08FE5", "#5BC9B8",
                                             "#E59B5B", "#D88FB7"));
}

TEST(ProjectColorPaletteTest, GivesTheFirstThatNoProjectHas) {
    EXPECT_EQ(nextProjectColor({}), "#7BD88F");
    EXPECT_EQ(nextProjectColor(projectsWith({"#7BD88F"})), "#6B9ED4");
    EXPECT_EQ(nextProjectColor(projectsWith({"#6B9ED4", "#E8C458"})), "#7BD88F");
    EXPECT_EQ(nextProjectColor(projectsWith({"#7BD88F", "#7BD88F", "#E8C458"})), "#6B9ED4");
}

TEST(ProjectColorPaletteTest, CountsTheColoursOfArchivedProjects) {
    auto projects = projectsWith({"#7BD88F"});
    projects.front().archived = true;
    EXPECT_EQ(nextProjectColor(projects), "#6B9ED4");
}

TEST(ProjectColorPaletteTest, ComparesExactly) {
    EXPECT_EQ(nextProjectColor(projectsWith({"#7bd88f", " #7BD88F", "7BD88F"})), "#7BD88F");
}

TEST(ProjectColorPaletteTest, ANinthProjectGetsTheFirstColourATenthTheSecond) {
    auto projects = projectsWithTheWholePalette();
    EXPECT_EQ(nextProjectColor(projects), "#7BD88F");
    projects.push_back({{}, "ninth", "#7BD88F", false});
    EXPECT_EQ(nextProjectColor(projects), "#6B9ED4");
}

}  // namespace
}  // namespace tidewatch
