#include "shell/export_commands.h"

#include <string_view>
#include <utility>

#include "shell/reveal_file.h"

namespace tidewatch {
namespace {

std::string_view wordsFor(platform::ExportErrorKind kind) {
    using enum platform::ExportErrorKind;
    switch (kind) {
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

ExportCommands::ExportCommands(Dependencies dependencies)
    : dependencies_(std::move(dependencies)),
      csv_(dependencies_.apps, dependencies_.projectTime, dependencies_.categories, dependencies_.appInfo) {}

void ExportCommands::exportCSV() {
    const auto day = dependencies_.days.today();
    dependencies_.days.set(dependencies_.engine.todaySeconds(), day);
    dependencies_.days.flush();
    dependencies_.apps.flush();
    const SaveRequest request{
        .title = "Exportar día",
        .proposedName = CsvExport::fileName(day),
        .kind = SaveKind::csv,
    };
    dependencies_.dialogs.chooseSaveLocation(
        request, [this, day](const std::string& path) { write(path, csv_.day(day)); });
}

void ExportCommands::exportProjectCSV(const Uuid& id) {
    const auto project = dependencies_.projects.project(id);
    if (!project) return;
    dependencies_.projectTime.flush();
    const SaveRequest request{
        .title = "Exportar proyecto",
        .proposedName = CsvExport::fileName(*project),
        .kind = SaveKind::csv,
    };
    dependencies_.dialogs.chooseSaveLocation(
        request, [this, project = *project](const std::string& path) { write(path, csv_.project(project)); });
}

void ExportCommands::exportReport() {
    const SaveRequest request{
        .title = "Guardar reporte",
        .proposedName = "fathom-reporte.pdf",
        .kind = SaveKind::pdf,
    };
    dependencies_.dialogs.chooseSaveLocation(request, [this](const std::string& path) {
        if (dependencies_.generateReport(path)) {
            revealFile(dependencies_.desktop, dependencies_.dialogs, path, "No se pudo mostrar el reporte");
        } else {
            // A report that could not be written is only logged; its path is revealed anyway.
            dependencies_.desktop.reveal(path, [](const Status&) {});
        }
    });
}

void ExportCommands::write(const std::string& path, const std::string& text) {
    if (const auto failure = dependencies_.files.exportFile(path, text)) {
        dependencies_.dialogs.warn("No se pudo escribir el archivo", std::string(wordsFor(failure->kind)));
    }
}

}  // namespace tidewatch
