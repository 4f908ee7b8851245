#include "shell/windows/save_dialog.h"

#include <QAbstractItemView>
#include <QChildEvent>
#include <QCompleter>
#include <QFileDialog>
#include <QFont>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QLocale>
#include <QPushButton>
#include <QTreeView>
#include <QWindow>
#include <utility>

#include "shell/windows/menu_style.h"

namespace tidewatch {

namespace {

constexpr QSize dialogSize(780, 480);
constexpr int placesWidth = 150;
constexpr int leastColumnWidth = 90;

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

void wear(QWidget& widget, const DashboardStyle& style) {
    widget.setPalette(dialogPalette(style));
    widget.setFont(dialogFont());
    for (auto* button : widget.findChildren<QPushButton*>()) button->setIcon({});
}

/// Puts the theme on the questions of a dialog, which take nothing from it as other widgets would.
class QuestionTailor final : public QObject {
public:
    QuestionTailor(QObject& dialog, const DashboardStyle& style) : QObject(&dialog), style_(style) {
        dialog.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ChildPolished) {
            auto* child = static_cast<QChildEvent*>(event)->child();
            if (auto* question = qobject_cast<QDialog*>(child)) wear(*question, style_);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    const DashboardStyle style_;
};

/// Those parts that the toolkit's own dialog alone has.
void wearInside(QFileDialog& dialog, const DashboardStyle& style) {
    if (auto* places = dialog.findChild<QListView*>("sidebar")) places->setMinimumWidth(placesWidth);
    if (auto* files = dialog.findChild<QTreeView*>("treeView")) {
        files->header()->setStretchLastSection(true);
        files->header()->setMinimumSectionSize(leastColumnWidth);
    }
    const auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
    if (name != nullptr && name->completer() != nullptr) wear(*name->completer()->popup(), style);
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
    putWordsOn(*dialog);
    wear(*dialog, style);
    wearInside(*dialog, style);
    new QuestionTailor(*dialog, style);
    dialog->resize(dialogSize);
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
