#pragma once

#include <qqmlregistration.h>
#include <QString>

#include "base/signal.h"
#include "platform/api/clock.h"
#include "platform/api/desktop.h"
#include "system/disk_analyzer.h"
#include "system/views/system_commands.h"
#include "system/views/system_rows.h"
#include "ui/models/row_list.h"
#include "ui/models/tab_presenter.h"
#include "ui/texts/qt_text.h"

namespace tidewatch {

/// The display values of the tab "Disco". Main thread only.
class DiskTabPresenter final : public tidewatch::TabPresenter {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Given by the composition of the program")
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(QString subtitle READ subtitle CONSTANT FINAL)
    Q_PROPERTY(QString scanText READ scanText NOTIFY scanChanged FINAL)
    Q_PROPERTY(bool isScanning READ isScanning NOTIFY scanChanged FINAL)
    /// Whether there is a result; until then the texts of the empty state are shown.
    Q_PROPERTY(bool hasResult READ hasResult NOTIFY scanChanged FINAL)
    Q_PROPERTY(QString emptyTitle READ emptyTitle NOTIFY scanChanged FINAL)
    Q_PROPERTY(QString emptyText READ emptyText CONSTANT FINAL)
    /// About a question of the system; empty if it asks none.
    Q_PROPERTY(QString permissionNote READ permissionNote NOTIFY wordsChanged FINAL)
    Q_PROPERTY(tidewatch::RowListModel* summary READ summary CONSTANT FINAL)
    /// Where accesses are not recorded; otherwise empty.
    Q_PROPERTY(QString accessNote READ accessNote NOTIFY scanChanged FINAL)
    Q_PROPERTY(QString filesTitle READ filesTitle CONSTANT FINAL)
    Q_PROPERTY(tidewatch::RowListModel* files READ files CONSTANT FINAL)
    Q_PROPERTY(bool hasFiles READ hasFiles NOTIFY scanChanged FINAL)
    Q_PROPERTY(QString noFiles READ noFiles CONSTANT FINAL)
    Q_PROPERTY(QString revealText READ revealText NOTIFY wordsChanged FINAL)
    Q_PROPERTY(QString revealFolderText READ revealFolderText CONSTANT FINAL)
    Q_PROPERTY(QString trashText READ trashText CONSTANT FINAL)
    Q_PROPERTY(QString foldersTitle READ foldersTitle CONSTANT FINAL)
    Q_PROPERTY(tidewatch::RowListModel* folders READ folders CONSTANT FINAL)
    Q_PROPERTY(bool hasFolders READ hasFolders NOTIFY scanChanged FINAL)
    Q_PROPERTY(QString noFolders READ noFolders CONSTANT FINAL)

public:
    /// All of it must outlive the presenter.
    struct Sources {
        const platform::Clock& clock;
        DiskAnalyzer& analyzer;
        const platform::Desktop& desktop;
        const SystemCommands& commands;
    };

    explicit DiskTabPresenter(const Sources& sources);

    [[nodiscard]] QString title() const { return "ANÁLISIS DE DISCO"; }
    [[nodiscard]] QString subtitle() const { return "Archivos grandes y olvidados en tus carpetas"; }
    [[nodiscard]] QString scanText() const;
    [[nodiscard]] bool isScanning() const { return sources_.analyzer.isScanning(); }
    [[nodiscard]] bool hasResult() const { return sources_.analyzer.result().finishedAt.has_value(); }
    [[nodiscard]] QString emptyTitle() const;
    [[nodiscard]] QString emptyText() const {
        return "FATHOM busca archivos de +50 MB que no has abierto en meses — candidatos a liberar espacio. "
               "Nada se borra sin tu confirmación (van a la Papelera).";
    }
    [[nodiscard]] QString permissionNote() const;
    [[nodiscard]] RowListModel* summary() { return &summary_; }
    [[nodiscard]] QString accessNote() const;
    [[nodiscard]] QString filesTitle() const { return "GRANDES Y OLVIDADOS"; }
    [[nodiscard]] RowListModel* files() { return &files_; }
    [[nodiscard]] bool hasFiles() const { return files_.rowCount() > 0; }
    [[nodiscard]] QString noFiles() const { return "No hay archivos de más de 50 MB en tus carpetas."; }
    [[nodiscard]] QString revealText() const { return text(words_.revealInFileManager); }
    [[nodiscard]] QString revealFolderText() const { return "Mostrar la carpeta"; }
    [[nodiscard]] QString trashText() const { return "Mover a la Papelera"; }
    [[nodiscard]] QString foldersTitle() const { return "CARPETAS MÁS PESADAS"; }
    [[nodiscard]] RowListModel* folders() { return &folders_; }
    [[nodiscard]] bool hasFolders() const { return folders_.rowCount() > 0; }
    [[nodiscard]] QString noFolders() const { return "Tus carpetas están vacías."; }

    /// Ignored during a scan.
    Q_INVOKABLE void scan();

    /// A file or a folder, by the id of its row. An unknown id has no effect.
    Q_INVOKABLE void reveal(const QString& id);

    /// Asks first. What fails is said to the user.
    Q_INVOKABLE void trash(const QString& id);

Q_SIGNALS:
    void scanChanged();
    void wordsChanged();

private:
    void update() override;
    void visibilityChanged() override;
    void moveToTrash(const ScannedFile& file);
    [[nodiscard]] const ScannedFile* file(const QString& id) const;
    [[nodiscard]] std::string path(const QString& id) const;

    Sources sources_;
    platform::DesktopWords words_;
    RowList<SystemFigure> summary_;
    RowList<DiskRow> files_;
    RowList<DiskRow> folders_;
    Connection analyzerChanged_;
};

}  // namespace tidewatch
