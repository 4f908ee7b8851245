// The tab "Disco".

#include <gtest/gtest.h>

#include "tests/support/presenter_probe.h"
#include "tests/system/views/system_world.h"

namespace tidewatch {
namespace {

struct DiskTabTest : testing::Test, SystemViewsWorld {
    void show() {
        disk_.setVisible(true);
        machine_.mainLoop.run();
    }
    void scan() {
        disk_.scan();
        machine_.mainLoop.run();
    }
    [[nodiscard]] DiskRow fileAt(int row) {
        return disk_.files()->index(row).data(RowListModel::rowRole).value<DiskRow>();
    }
    [[nodiscard]] DiskRow folderAt(int row) {
        return disk_.folders()->index(row).data(RowListModel::rowRole).value<DiskRow>();
    }
};

TEST_F(DiskTabTest, BeforeTheFirstScan) {
    useBelievableFiles();
    show();
    test::expectGolden(test::probe(disk_), TIDEWATCH_GOLDEN_FOLDER "/disk-tab-before.json");
}

TEST_F(DiskTabTest, AfterAScan) {
    useBelievableFiles();
    show();
    scan();
    test::expectGolden(test::probe(disk_), TIDEWATCH_GOLDEN_FOLDER "/disk-tab.json");
}

TEST_F(DiskTabTest, NothingWasFound) {
    show();
    scan();
    EXPECT_TRUE(disk_.hasResult());
    EXPECT_FALSE(disk_.hasFiles());
    EXPECT_FALSE(disk_.hasFolders());
    EXPECT_EQ(disk_.scanText(), "Volver a analizar");
}

TEST_F(DiskTabTest, TheFoldersToScanHaveTheUsersOwnNames) {
    show();
    EXPECT_EQ(disk_.emptyTitle(), "Escanea Descargas · Escritorio · Documentos · Películas");
    disk_.setVisible(false);
    useBelievableFiles();
    show();
    EXPECT_EQ(disk_.emptyTitle(), "Escanea Descargas · Escritorio · Documentos · Vídeos");
}

TEST_F(DiskTabTest, TheButtonShowsWhatIsBeingScanned) {
    useBelievableFiles();
    show();
    EXPECT_EQ(disk_.scanText(), "Analizar mi disco");
    QStringList shown;
    QObject::connect(&disk_, &DiskTabPresenter::scanChanged, &disk_, [&] { shown.append(disk_.scanText()); });
    scan();
    shown.removeDuplicates();
    EXPECT_EQ(shown, QStringList({"Analizando…", "Analizando Descargas…", "Analizando Escritorio…",
                                  "Analizando Documentos…", "Analizando Vídeos…", "Volver a analizar"}));
}

TEST_F(DiskTabTest, ASecondPressDuringAScanDoesNothing) {
    useBelievableFiles();
    show();
    disk_.scan();
    disk_.scan();
    EXPECT_TRUE(disk_.isScanning());
    int ends = 0;
    QObject::connect(&disk_, &DiskTabPresenter::scanChanged, &disk_,
                     [&] { ends += disk_.isScanning() ? 0 : 1; });
    machine_.mainLoop.run();
    EXPECT_EQ(ends, 1);
}

TEST_F(DiskTabTest, OldFilesComeFirstWithTheirAge) {
    useBelievableFiles();
    show();
    scan();
    EXPECT_EQ(fileAt(0).name, "debian-12.7.0-amd64-DVD-1.iso");
    EXPECT_EQ(fileAt(0).size, "3.7 GB");
    EXPECT_EQ(fileAt(0).age, "hace 7mes");
    EXPECT_TRUE(fileAt(0).ageColor.isValid());
    EXPECT_EQ(fileAt(1).age, "hace 1año");
    const auto recent = fileAt(disk_.files()->rowCount() - 1);
    EXPECT_EQ(recent.name, "captura.mp4");
    EXPECT_EQ(recent.age, "hoy");
    EXPECT_FALSE(recent.ageColor.isValid());
}

TEST_F(DiskTabTest, TheBarOfAFolderIsItsShareOfTheLargest) {
    useBelievableFiles();
    show();
    scan();
    EXPECT_EQ(folderAt(0).name, "Boda de Ana");
    EXPECT_DOUBLE_EQ(folderAt(0).fraction, 1);
    EXPECT_NEAR(folderAt(1).fraction, 3790.0 / 5660, 1e-9);
}

TEST_F(DiskTabTest, AFileAndAFolderAreRevealed) {
    useBelievableFiles();
    show();
    scan();
    disk_.reveal(fileAt(0).id);
    disk_.reveal(folderAt(0).id);
    disk_.reveal("another");
    EXPECT_EQ(machine_.desktop.revealed(),
              (std::vector<std::string>{"/home/user/Descargas/debian-12.7.0-amd64-DVD-1.iso",
                                        "/home/user/Vídeos/Boda de Ana"}));
    EXPECT_TRUE(warnings_.empty());
}

TEST_F(DiskTabTest, AFileThatCannotBeRevealedIsNamedToTheUser) {
    useBelievableFiles();
    show();
    scan();
    machine_.desktop.setRevealStatus(Error{"nobody answers"});
    disk_.reveal(fileAt(0).id);
    ASSERT_EQ(warnings_.size(), 1);
    EXPECT_EQ(warnings_[0],
              "No se pudo mostrar el archivo|No respondió ningún gestor de archivos. El archivo está aquí:\n"
              "/home/user/Descargas/debian-12.7.0-amd64-DVD-1.iso");
}

TEST_F(DiskTabTest, TrashAsksFirst) {
    useBelievableFiles();
    show();
    scan();
    const int rows = disk_.files()->rowCount();
    disk_.trash(fileAt(0).id);
    ASSERT_EQ(questions_.size(), 1);
    EXPECT_EQ(questions_[0].title, "¿Mover a la Papelera?");
    EXPECT_EQ(questions_[0].name + questions_[0].afterName,
              "debian-12.7.0-amd64-DVD-1.iso (3.7 GB)\nSe puede recuperar desde la Papelera.");
    EXPECT_EQ(questions_[0].accept, "Mover a la Papelera");
    EXPECT_TRUE(machine_.trash.trashed.empty());
    EXPECT_EQ(disk_.files()->rowCount(), rows);
}

TEST_F(DiskTabTest, OnlyAYesMovesTheFileToTheTrash) {
    useBelievableFiles();
    show();
    scan();
    const auto first = fileAt(0);
    const int rows = disk_.files()->rowCount();
    disk_.trash(first.id);
    accept();
    EXPECT_EQ(machine_.trash.trashed,
              std::vector<std::string>{"/home/user/Descargas/debian-12.7.0-amd64-DVD-1.iso"});
    EXPECT_EQ(disk_.files()->rowCount(), rows - 1);
    EXPECT_NE(fileAt(0).id, first.id);
}

TEST_F(DiskTabTest, TheSummaryKeepsTheBytesOfATrashedFile) {
    useBelievableFiles();
    show();
    scan();
    const auto reclaimable = [this] {
        return disk_.summary()->index(1).data(RowListModel::rowRole).value<SystemFigure>().accessibleText();
    };
    const auto before = reclaimable();
    disk_.trash(fileAt(0).id);
    accept();
    EXPECT_EQ(reclaimable(), before);
    EXPECT_EQ(disk_.summary()->index(2).data(RowListModel::rowRole).value<SystemFigure>().value, "6");
}

TEST_F(DiskTabTest, AFailedTrashIsSaidAndTheRowStays) {
    useBelievableFiles();
    show();
    scan();
    machine_.trash.status = Error{"read-only"};
    machine_.log.expectWarning("Trash failed: read-only");
    const int rows = disk_.files()->rowCount();
    disk_.trash(fileAt(0).id);
    accept();
    ASSERT_EQ(warnings_.size(), 1);
    EXPECT_EQ(warnings_[0],
              "No se pudo mover a la Papelera|debian-12.7.0-amd64-DVD-1.iso\n"
              "El archivo sigue donde estaba.");
    EXPECT_EQ(disk_.files()->rowCount(), rows);
}

TEST_F(DiskTabTest, TheWordsOfTheDesktopAreUsed) {
    machine_.desktop.setWords({.revealInFileManager = "Mostrar en la carpeta", .unnamedVolume = "Sistema"});
    show();
    EXPECT_EQ(disk_.revealText(), "Mostrar en la carpeta");
    EXPECT_EQ(disk_.permissionNote(), "");
}

TEST_F(DiskTabTest, PermissionIsOnlyMentionedWhereTheDesktopAsks) {
    machine_.desktop.setWords(
        {.revealInFileManager = "Ver", .unnamedVolume = "Sistema", .asksBeforeReadingFolders = true});
    show();
    EXPECT_EQ(disk_.permissionNote(), "Tu sistema pedirá permiso para leer esas carpetas la primera vez.");
}

TEST_F(DiskTabTest, AHiddenTabFollowsTheScanOnlyWhenShownAgain) {
    useBelievableFiles();
    show();
    disk_.scan();
    disk_.setVisible(false);
    machine_.mainLoop.run();
    EXPECT_EQ(disk_.files()->rowCount(), 0);
    disk_.setVisible(true);
    EXPECT_EQ(disk_.files()->rowCount(), 7);
}

}  // namespace
}  // namespace tidewatch
