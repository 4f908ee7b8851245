#include "system/views/disk_tab_presenter.h"

#include <algorithm>

#include "base/byte_format.h"
#include "system/views/system_texts.h"
#include "ui/texts/display_text.h"

namespace tidewatch {

DiskTabPresenter::DiskTabPresenter(const Sources& sources)
    : sources_(sources), analyzerChanged_(sources.analyzer.changed.connect([this] { updateIfVisible(); })) {}

void DiskTabPresenter::visibilityChanged() {
    if (!isVisible()) return;
    words_ = sources_.desktop.words();
    Q_EMIT wordsChanged();
    sources_.analyzer.lookUpFolderNames();
}

void DiskTabPresenter::update() {
    const auto& result = sources_.analyzer.result();
    summary_.setRows({{.id = "ANALIZADO", .value = sizeText(result.totalScannedBytes)},
                      {.id = "RECUPERABLE", .value = sizeText(result.reclaimableBytes)},
                      {.id = "GRANDES", .value = QString::number(result.largeOld.size())},
                      {.id = "CARPETAS", .value = QString::number(result.topFolders.size())}});
    files_.setRows(fileRows(result, sources_.clock.now()));
    folders_.setRows(folderRows(result));
    Q_EMIT scanChanged();
}

QString DiskTabPresenter::scanText() const {
    if (!isScanning()) return hasResult() ? "Volver a analizar" : "Analizar mi disco";
    const auto& progress = sources_.analyzer.progressLabel();
    return progress.empty() ? "Analizando…" : nameText(progress);
}

QString DiskTabPresenter::emptyTitle() const {
    QStringList names;
    for (const auto& name : sources_.analyzer.folderNames()) names.append(nameText(name));
    return "Escanea " +
           (names.isEmpty() ? "Descargas · Escritorio · Documentos · Películas" : names.join(" · "));
}

QString DiskTabPresenter::permissionNote() const {
    if (!words_.asksBeforeReadingFolders) return {};
    return "Tu sistema pedirá permiso para leer esas carpetas la primera vez.";
}

QString DiskTabPresenter::accessNote() const {
    if (!sources_.analyzer.result().lacksAccessTimes) return {};
    return "Este disco no registra cuándo se abre cada archivo: también cuenta su último cambio.";
}

void DiskTabPresenter::scan() {
    sources_.analyzer.scan();
}

void DiskTabPresenter::reveal(const QString& id) {
    const auto shown = path(id);
    if (shown.empty()) return;
    sources_.analyzer.reveal(shown, [this, shown](const Status& status) {
        if (status) return;
        sources_.commands.warn("No se pudo mostrar el archivo",
                               "No respondió ningún gestor de archivos. El archivo está aquí:\n" + shown);
    });
}

void DiskTabPresenter::trash(const QString& id) {
    const auto* found = file(id);
    if (!found) return;
    const SystemQuestion question{
        .title = "¿Mover a la Papelera?",
        .name = found->name,
        .afterName = " (" + formatBytes(found->size) + ")\nSe puede recuperar desde la Papelera.",
        .accept = trashText().toStdString(),
    };
    sources_.commands.confirm(question, [this, file = *found] { moveToTrash(file); });
}

void DiskTabPresenter::moveToTrash(const ScannedFile& file) {
    if (sources_.analyzer.moveToTrash(file.path)) return;
    sources_.commands.warn("No se pudo mover a la Papelera",
                           nameText(file.name).toStdString() + "\nEl archivo sigue donde estaba.");
}

const ScannedFile* DiskTabPresenter::file(const QString& id) const {
    const auto& files = sources_.analyzer.result().largeOld;
    const auto found =
        std::ranges::find_if(files, [&](const auto& file) { return text(file.id.text()) == id; });
    return found == files.end() ? nullptr : &*found;
}

std::string DiskTabPresenter::path(const QString& id) const {
    if (const auto* found = file(id)) return found->path;
    const auto& folders = sources_.analyzer.result().topFolders;
    const auto found =
        std::ranges::find_if(folders, [&](const auto& folder) { return text(folder.id.text()) == id; });
    return found == folders.end() ? std::string() : found->path;
}

}  // namespace tidewatch
