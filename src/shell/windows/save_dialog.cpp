#include "shell/windows/save_dialog.h"

#include <QFileDialog>
#include <QFont>
#include <QGuiApplication>
#include <QLocale>
#include <QWindow>
#include <utility>

#include "shell/windows/menu_style.h"

namespace tidewatch {

namespace {

/// How a kind of file is told apart.
struct FileType {
    const char* filter;
    const char* extension;
};

FileType fileType(SaveKind kind) {
    switch (kind) {
        case SaveKind::pdf:
            return {"Documento PDF (*.pdf)", "pdf"};
        case SaveKind::csv:
            break;
    }
    return {"Valores separados por comas (*.csv)", "csv"};
}

QFont dialogFont() {
    QFont font("Inter");
    font.setPixelSize(13);
    return font;
}

void putWordsOn(QFileDialog& dialog) {
    dialog.setLocale(QLocale(QLocale::Spanish, QLocale::Mexico));
    dialog.setLabelText(QFileDialog::Accept, "Guardar");
    dialog.setLabelText(QFileDialog::Reject, "Cancelar");
    dialog.setLabelText(QFileDialog::FileName, "Nombre:");
    dialog.setLabelText(QFileDialog::FileType, "Tipo:");
    dialog.setLabelText(QFileDialog::LookIn, "Guardar en:");
}

/// Keeps the dialog above the window that the user was in.
void placeAbove(QFileDialog& dialog, QWindow* window) {
    if (window == nullptr) return;
    dialog.winId();
    dialog.windowHandle()->setTransientParent(window);
}

}  // namespace

QFileDialog* presentSaveDialog(const SaveRequest& request, const QString& folder, const DashboardStyle& style,
                               std::function<void(const QString& path)> accepted) {
    const auto type = fileType(request.kind);
    auto* dialog = new QFileDialog(nullptr, QString::fromStdString(request.title), folder, type.filter);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setDefaultSuffix(type.extension);
    dialog->setPalette(dialogPalette(style));
    dialog->setFont(dialogFont());
    putWordsOn(*dialog);
    dialog->selectFile(QString::fromStdString(request.proposedName));
    QObject::connect(dialog, &QFileDialog::fileSelected, dialog, std::move(accepted));
    placeAbove(*dialog, QGuiApplication::focusWindow());
    dialog->setModal(true);
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
    return dialog;
}

}  // namespace tidewatch
