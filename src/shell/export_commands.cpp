#include "shell/export_commands.h"

#include <string_view>
#include <utility>

#include "shell/reveal_file.h"

namespace tidewatch {
namespace {

std::string_view wordsFor(platform::ExportFault fault) {
    using enum platform::ExportFault;
    switch (fault) {
        case noPermission:
            return "No tienes permiso para escribir en esa carpeta.";
        case readOnlyDisk:
            return "Ese disco es de solo lectura.";
        case noSpace:
            return "No queda espacio en el disco.";
        case folderMissing:
            return "Esa carpeta ya no existe.";
        case notAFile:
            return "Ese nombre ya lo tiene algo que no es un archivo.";
        case nameTooLong:
            return "El nombre es demasiado largo.";
        case other:
            break;
    }
    return "El disco dio un error.";
}

}  // namespace

ExportCommands::ExportCommands(Targets targets)
    : to_(std::move(targets)), csv_(to_.apps, to_.projectTime, to_.categories, to_.appInfo) {}

void ExportCommands::exportCSV() {
    const auto day = to_.days.today();
    to_.days.set(to_.engine.todaySeconds(), day);
    to_.days.flush();
    to_.apps.flush();
    const SaveRequest request{
        .title = "Exportar día",
        .proposedName = CsvExport::fileName(day),
        .kind = SaveKind::csv,
    };
    to_.dialogs.chooseSaveLocation(request,
                                   [this, day](const std::string& path) { write(path, csv_.day(day)); });
}

void ExportCommands::exportProjectCSV(const Uuid& id) {
    const auto project = to_.projects.project(id);
    if (!project) return;
    to_.projectTime.flush();
    const SaveRequest request{
        .title = "Exportar proyecto",
        .proposedName = CsvExport::fileName(*project),
        .kind = SaveKind::csv,
    };
    to_.dialogs.chooseSaveLocation(
        request, [this, project = *project](const std::string& path) { write(path, csv_.project(project)); });
}

void ExportCommands::exportReport() {
    const SaveRequest request{
        .title = "Guardar reporte",
        .proposedName = "fathom-reporte.pdf",
        .kind = SaveKind::pdf,
    };
    to_.dialogs.chooseSaveLocation(request, [this](const std::string& path) {
        if (to_.generateReport(path)) {
            revealFile(to_.desktop, to_.dialogs, path, "No se pudo mostrar el reporte");
        } else {
            // A report that could not be written is only logged; its place is shown all the same.
            to_.desktop.reveal(path, [](const Outcome&) {});
        }
    });
}

void ExportCommands::write(const std::string& path, const std::string& text) {
    if (const auto failure = to_.files.exportFile(path, text)) {
        to_.dialogs.warn("No se pudo escribir el archivo", std::string(wordsFor(failure->fault)));
    }
}

}  // namespace tidewatch
