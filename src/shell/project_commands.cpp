#include "shell/project_commands.h"

#include <string>

#include "base/trim.h"

namespace tidewatch {

void ProjectCommands::switchProject(std::optional<Uuid> id) {
    if (!id || projects_.project(*id)) projects_.setActive(id);
}

void ProjectCommands::newProject() {
    const TextPrompt prompt{
        .title = "Nuevo proyecto",
        .text = {"Nombre del proyecto:"},
        .accept = "Crear",
        .placeholder = "p.ej. LMN Juvenil",
        .initial = "",
        .fieldWidth = 240,
    };
    dialogs_.ask(prompt, [this](const std::string& answer) {
        const auto name = trimmed(answer);
        if (!name.empty()) projects_.setActive(projects_.addProject(name).id);
    });
}

void ProjectCommands::renameProject(const Uuid& id) {
    const auto project = projects_.project(id);
    if (!project) return;
    const TextPrompt prompt{
        .title = "Renombrar proyecto",
        .text = {"Nuevo nombre para \"", project->name, "\":"},
        .accept = "Cambiar",
        .placeholder = "",
        .initial = project->name,
        .fieldWidth = 280,
    };
    dialogs_.ask(prompt, [this, id](const std::string& answer) { projects_.renameProject(id, answer); });
}

void ProjectCommands::setProjectColor(std::string_view hex, const Uuid& id) {
    projects_.setColor(hex, id);
}

void ProjectCommands::archiveProject(const Uuid& id) {
    projects_.setArchived(ProjectStore::Archived::yes, id);
}

void ProjectCommands::unarchiveProject(const Uuid& id) {
    projects_.setArchived(ProjectStore::Archived::no, id);
}

void ProjectCommands::deleteProject(const Uuid& id) {
    const auto project = projects_.project(id);
    if (!project) return;
    const Confirmation question{
        .title = {"Borrar \"", project->name, "\""},
        .text = {"Esto elimina el proyecto y su tiempo asociado del historial. Esta acción no se puede "
                 "deshacer."},
        .accept = "Borrar",
    };
    dialogs_.confirm(question, [this, id] { projects_.deleteProject(id); });
}

}  // namespace tidewatch
