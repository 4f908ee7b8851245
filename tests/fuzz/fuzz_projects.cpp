// The projects file, compared with a strict parser; and each colour in it.

#include <algorithm>
#include <string>

#include "projects/project_file.h"
#include "tests/fuzz/fuzz_target.h"
#include "tests/fuzz/strict_json.h"

namespace tidewatch::fuzz {
namespace {

template <class Type>
const Type* only(const Json& object, std::string_view name) {
    const auto found = object.all(name);
    return found.size() == 1 ? found.front()->as<Type>() : nullptr;
}

bool isProject(const Json& json, const Project& project) {
    const auto* id = only<std::string>(json, "id");
    const auto* name = only<std::string>(json, "name");
    const auto* color = only<std::string>(json, "colorHex");
    const auto* archived = only<bool>(json, "archived");
    return id && name && color && archived && Uuid::parse(*id) == project.id && *name == project.name &&
           *color == project.colorHex && *archived == project.archived;
}

// Of duplicate keys either may win.
bool givesAKeyTwice(const Json& json) {
    constexpr auto twice = [](const Json& object, std::string_view key) {
        return object.all(key).size() > 1;
    };
    const auto lists = json.all("projects");
    if (lists.size() > 1 || twice(json, "activeProjectID")) return true;
    const auto* list = lists.empty() ? nullptr : lists.front()->as<Json::Elements>();
    return list && std::ranges::any_of(*list, [&](const Json& project) {
               return std::ranges::any_of(
                   std::initializer_list<std::string_view>{"id", "name", "colorHex", "archived"},
                   [&](std::string_view key) { return twice(project, key); });
           });
}

void requireSame(const Json& json, const ProjectList& list) {
    const auto* projects = only<Json::Elements>(json, "projects");
    require(projects && projects->size() == list.projects.size(), "every project is read");
    for (std::size_t i = 0; i < list.projects.size(); ++i) {
        require(isProject((*projects)[i], list.projects[i]), "a project is read as it stands");
    }
    const auto* active = only<std::string>(json, "activeProjectID");
    require(active ? list.activeId == Uuid::parse(*active) : !list.activeId,
            "the active project is read as it stands");
}

}  // namespace

void check(std::string_view input) {
    const auto list = parseProjects(std::string(input));
    if (!list) return;
    const auto json = parseStrictly(input);
    require(json.has_value(), "what is not JSON is refused");
    if (!givesAKeyTwice(*json)) requireSame(*json, *list);
    for (const auto& project : list->projects) (void)project.color();

    const auto written = serializeProjects(*list);
    require(parseStrictly(written).has_value(), "what is written is JSON");
    require(parseProjects(written) == list, "what is written reads back the same");
}

}  // namespace tidewatch::fuzz
