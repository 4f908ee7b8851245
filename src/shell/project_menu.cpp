#include "shell/project_menu.h"

#include <array>
#include <string_view>
#include <utility>

#include "base/lower_case.h"
#include "projects/project_color_palette.h"

namespace tidewatch {

namespace {

/// The names of the project colours, in their order.
constexpr std::array<std::string_view, 8> colorTitles = {"Verde",  "Azul", "Ámbar",   "Rojo",
                                                         "Morado", "Teal", "Naranja", "Rosa"};

bool sameColor(std::string_view one, std::string_view other) {
    return lowerCased(one) == lowerCased(other);
}

MenuRow colorMenu(const Project& project, ProjectCommands& commands) {
    MenuRow menu{.title = "Cambiar color"};
    for (std::size_t i = 0; i < colorTitles.size(); ++i) {
        const std::string hex(projectColors()[i]);
        menu.children.push_back(
            {.title = std::string(colorTitles[i]),
             .checked = sameColor(hex, project.colorHex),
             .swatch = parseColorHex(hex),
             .action = [&commands, hex, id = project.id] { commands.setProjectColor(hex, id); }});
    }
    return menu;
}

MenuRow menuOf(const Project& project, bool active, ProjectCommands& to, ExportCommands& exports) {
    const auto id = project.id;
    MenuRow menu{.title = project.name, .checked = active, .swatch = project.color()};
    menu.children = {
        {.title = active ? "Activo" : "Activar",
         .checked = active,
         .action = [&to, id] { to.switchProject(id); }},
        MenuRow::separator(),
        {.title = "Renombrar…", .action = [&to, id] { to.renameProject(id); }},
        colorMenu(project, to),
        {.title = "Exportar CSV…", .action = [&exports, id] { exports.exportProjectCSV(id); }},
        MenuRow::separator(),
        {.title = "Archivar", .action = [&to, id] { to.archiveProject(id); }},
        {.title = "Borrar…", .action = [&to, id] { to.deleteProject(id); }},
    };
    return menu;
}

MenuRow archivedMenu(const std::vector<Project>& archived, ProjectCommands& to) {
    MenuRow menu{.title = "Archivados"};
    for (const auto& project : archived) {
        menu.children.push_back({.title = project.name,
                                 .swatch = project.color(),
                                 .action = [&to, id = project.id] { to.unarchiveProject(id); }});
    }
    return menu;
}

}  // namespace

MenuRow projectMenu(const ProjectStore& projects, ProjectCommands& to, ExportCommands& exports) {
    MenuRow menu{.title = "Proyecto"};
    const auto active = projects.activeProjectId();
    menu.children.push_back(
        {.title = "(ninguno)", .checked = !active, .action = [&to] { to.switchProject(std::nullopt); }});
    const auto current = projects.activeProjects();
    if (!current.empty()) menu.children.push_back(MenuRow::separator());
    for (const auto& project : current)
        menu.children.push_back(menuOf(project, project.id == active, to, exports));
    menu.children.push_back(MenuRow::separator());
    menu.children.push_back({.title = "Nuevo proyecto…", .action = [&to] { to.newProject(); }});
    if (const auto archived = projects.archivedProjects(); !archived.empty()) {
        menu.children.push_back(archivedMenu(archived, to));
    }
    return menu;
}

}  // namespace tidewatch
