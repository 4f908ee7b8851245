#include "projects/project_store.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/trim.h"
#include "projects/project_color_palette.h"

namespace tidewatch {

ProjectStore::ProjectStore(platform::FileSystem& files, platform::Log& log, platform::Randomness& randomness,
                           const Broadcaster& broadcaster)
    : randomness_(randomness),
      broadcaster_(broadcaster),
      file_(files, log, "projects.json", "Tidewatch: failed to save projects: ") {
    if (auto list = file_.read(parseProjects)) list_ = std::move(*list);
}

std::optional<Project> ProjectStore::activeProject() const {
    return list_.activeId ? project(*list_.activeId) : std::nullopt;
}

std::optional<Project> ProjectStore::project(const Uuid& id) const {
    const auto found = std::ranges::find(list_.projects, id, &Project::id);
    return found == list_.projects.end() ? std::nullopt : std::optional(*found);
}

std::vector<Project> ProjectStore::activeProjects() const {
    return projectsThatAre(Archived::no);
}

std::vector<Project> ProjectStore::archivedProjects() const {
    return projectsThatAre(Archived::yes);
}

Project ProjectStore::addProject(std::string_view name) {
    const auto high = randomness_.bits();
    const auto low = randomness_.bits();
    Project project{Uuid::random(high, low), std::string(name), std::string(nextProjectColor(list_.projects)),
                    false};
    list_.projects.push_back(project);
    finishChange();
    return project;
}

void ProjectStore::setActive(std::optional<Uuid> id) {
    list_.activeId = id;
    finishChange();
}

void ProjectStore::renameProject(const Uuid& id, std::string_view newName) {
    auto* const project = find(id);
    const auto name = trimmed(newName);
    if (!project || name.empty()) return;
    project->name = name;
    finishChange();
}

void ProjectStore::setColor(std::string_view hex, const Uuid& id) {
    auto* const project = find(id);
    if (!project) return;
    project->colorHex = hex;
    finishChange();
}

void ProjectStore::setArchived(Archived archived, const Uuid& id) {
    auto* const project = find(id);
    if (!project) return;
    project->archived = archived == Archived::yes;
    if (project->archived) deactivate(id);
    finishChange();
}

void ProjectStore::deleteProject(const Uuid& id) {
    std::erase_if(list_.projects, [&](const Project& project) { return project.id == id; });
    deactivate(id);
    finishChange();
}

Project* ProjectStore::find(const Uuid& id) {
    const auto found = std::ranges::find(list_.projects, id, &Project::id);
    return found == list_.projects.end() ? nullptr : &*found;
}

std::vector<Project> ProjectStore::projectsThatAre(Archived archived) const {
    std::vector<Project> result;
    std::ranges::copy_if(list_.projects, std::back_inserter(result), [&](const Project& project) {
        return project.archived == (archived == Archived::yes);
    });
    return result;
}

void ProjectStore::deactivate(const Uuid& id) {
    if (list_.activeId == id) list_.activeId.reset();
}

void ProjectStore::finishChange() {
    save();
    changed.emit();
    broadcaster_.post(ProjectsChanged{});
}

void ProjectStore::save() {
    file_.write(serializeProjects(list_));
}

}  // namespace tidewatch
