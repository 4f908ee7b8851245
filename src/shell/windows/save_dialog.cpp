#include "shell/windows/save_dialog.h"

#include <QAbstractItemView>
#include <QChildEvent>
#include <QCompleter>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFont>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeView>
#include <QWindow>
#include <memory>
#include <utility>

#include "shell/windows/elided_text.h"
#include "shell/windows/file_name.h"
#include "shell/windows/menu_style.h"
#include "shell/windows/safe_file_icons.h"
#include "ui/texts/qt_text.h"

namespace tidewatch {

namespace {

constexpr QSize dialogSize(780, 480);
constexpr int placesWidth = 150;
constexpr int minColumnWidth = 90;
constexpr int questionWidth = 360;

/// How files of a kind are recognised.
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

void apply(QWidget& widget, const DashboardStyle& style) {
    widget.setPalette(dialogPalette(style));
    widget.setFont(dialogFont());
    for (auto* button : widget.findChildren<QPushButton*>()) button->setIcon({});
}

/// Applies the theme to a dialog's message boxes, which do not inherit it from the dialog.
class QuestionTailor final : public QObject {
public:
    QuestionTailor(QObject& dialog, const DashboardStyle& style) : QObject(&dialog), style_(style) {
        dialog.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ChildPolished) {
            auto* child = static_cast<QChildEvent*>(event)->child();
            if (auto* question = qobject_cast<QDialog*>(child)) apply(*question, style_);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    const DashboardStyle style_;
};

/// The widgets that exist only in the toolkit's own dialog.
void wearInside(QFileDialog& dialog, const DashboardStyle& style) {
    if (auto* places = dialog.findChild<QListView*>("sidebar")) places->setMinimumWidth(placesWidth);
    if (auto* files = dialog.findChild<QTreeView*>("treeView")) {
        files->header()->setStretchLastSection(true);
        files->header()->setMinimumSectionSize(minColumnWidth);
    }
    const auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
    if (name != nullptr && name->completer() != nullptr) apply(*name->completer()->popup(), style);
}

void putWordsOn(QFileDialog& dialog) {
    dialog.setLocale(QLocale(QLocale::Spanish, QLocale::Mexico));
    dialog.setLabelText(QFileDialog::Accept, "Guardar");
    dialog.setLabelText(QFileDialog::Reject, "Cancelar");
    dialog.setLabelText(QFileDialog::FileName, "Nombre:");
    dialog.setLabelText(QFileDialog::FileType, "Tipo:");
    dialog.setLabelText(QFileDialog::LookIn, "Guardar en:");
}

/// Keeps the dialog above the previously active window.
void placeAbove(QFileDialog& dialog, QWindow* window) {
    if (window == nullptr) return;
    dialog.winId();
    dialog.windowHandle()->setTransientParent(window);
}

/// The toolkit's dialog takes a double quote in the name field for the end of one of several names. This one
/// takes the field's text literally as a single name.
class SaveDialog final : public QFileDialog {
public:
    using QFileDialog::QFileDialog;

    /// Null if the desktop's own dialog is used.
    [[nodiscard]] QLineEdit* nameField() const { return findChild<QLineEdit*>("fileNameEdit"); }

    void propose(const QString& name) {
        if (auto* field = nameField()) {
            field->setText(name);
        } else {
            selectFile(name);
        }
    }

protected:
    void accept() override {
        auto* field = nameField();
        if (field == nullptr) {
            QFileDialog::accept();
            return;
        }
        if (field->text().isEmpty()) return;
        const auto place = placeOf(field->text());
        if (QFileInfo(place).isDir()) {
            setDirectory(place);
            field->clear();
            return;
        }
        const auto path = withExtension(place);
        if (QFileInfo::exists(path) && !mayReplace(path)) return;
        Q_EMIT fileSelected(path);
        // The base class would parse the name.
        QDialog::accept();  // NOLINT(bugprone-parent-virtual-call)
    }

private:
    [[nodiscard]] QString placeOf(const QString& text) const {
        const bool inHome = text == u"~" || text.startsWith(u"~/");
        return QDir::cleanPath(inHome ? QDir::homePath() + text.mid(1) : directory().absoluteFilePath(text));
    }

    [[nodiscard]] QString withExtension(const QString& path) const {
        const QString extension = u'.' + defaultSuffix();
        return path.endsWith(extension, Qt::CaseInsensitive) ? path : path + extension;
    }

    bool mayReplace(const QString& path) {
        const auto question =
            QFileDialog::tr("%1 already exists.\nDo you want to replace it?")
                .arg(elidedLine(QFileInfo(path).fileName().toStdString(), font(), questionWidth));
        QMessageBox box(QMessageBox::Warning, windowTitle(), question, QMessageBox::Yes | QMessageBox::No,
                        this);
        box.setTextFormat(Qt::PlainText);
        box.setDefaultButton(QMessageBox::No);
        return box.exec() == QMessageBox::Yes;
    }
};

}  // namespace

QFileDialog* presentSaveDialog(const SaveRequest& request, const QString& folder, const DashboardStyle& style,
                               std::function<void(const QString& path)> accepted) {
    const auto type = fileType(request.kind);
    keepUnsafeIconsFromDialogs();
    auto* dialog = new SaveDialog(nullptr, text(request.title), folder, type.filter);
    // Destroyed after the dialog's parts, one of which requests icons on its own thread.
    const auto icons = std::make_shared<SafeFileIcons>();
    dialog->setIconProvider(icons.get());
    QObject::connect(dialog, &QObject::destroyed, [icons] {});
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setDefaultSuffix(type.extension);
    putWordsOn(*dialog);
    apply(*dialog, style);
    wearInside(*dialog, style);
    new QuestionTailor(*dialog, style);
    dialog->resize(dialogSize);
    dialog->propose(text(writableFileName(request.proposedName)));
    QObject::connect(dialog, &QFileDialog::fileSelected, dialog, std::move(accepted));
    placeAbove(*dialog, QGuiApplication::focusWindow());
    dialog->setModal(true);
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
    return dialog;
}

}  // namespace tidewatch
