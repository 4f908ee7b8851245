// The tabs "Sistema" and "Disco" as views.

#include <QtTest/QTest>

#include "system/views/needle.h"
#include "tests/system/views/system_view_fixture.h"

namespace tidewatch {
namespace {

TEST_F(SystemViewTest, TheTabsLoadInEveryTheme) {
    overview_.analyzer.scan();
    machine_.mainLoop.run();
    for (const auto& theme : themes_.themes()) {
        SCOPED_TRACE(theme.id);
        theme_.switchTo(theme.id);
        showSystem();
        EXPECT_EQ(picture().size(), QSize(1139, 1000));
        showDisk();
        EXPECT_EQ(picture().size(), QSize(1139, 1000));
        showCompactSpeedTest();
        EXPECT_EQ(picture().size(), QSize(220, 300));
    }
}

TEST_F(SystemViewTest, NothingIsCutOffInTheNarrowestTab) {
    measureSpeed(std::chrono::seconds(8));
    showSystem({820, 560});
    static_cast<void>(picture());
    expectNothingCutOff(820);
    overview_.analyzer.scan();
    machine_.mainLoop.run();
    showDisk({820, 560});
    static_cast<void>(picture());
    expectNothingCutOff(820, {"debian-12.7.0-amd64-DVD-1.iso"});
    showCompactSpeedTest();
    static_cast<void>(picture());
    expectNothingCutOff(220);
}

TEST_F(SystemViewTest, TheTabShowsTheFigures) {
    showSystem();
    EXPECT_EQ(textOf("cpu"), "37%");
    EXPECT_EQ(textOf("memory"), "56%");
    EXPECT_EQ(textOf("memoryUse"), "9.0 GB de 16.0 GB");
    EXPECT_EQ(textOf("network"), "CasaNube 5G");
    EXPECT_EQ(textOf("gpu"), "12%");
    EXPECT_FALSE(the("noDisks").isVisible());
    machine_.counters.gpus.clear();
    awaitSample();
    EXPECT_FALSE(the("gpu").isVisible());
    EXPECT_EQ(textOf("gpuText"), "No disponible en este equipo");
}

TEST_F(SystemViewTest, AssistiveTechnologyReadsTheFigures) {
    showSystem();
    const auto names = accessibleNames();
    for (const auto* name :
         {"CPU", "37%", "usuario: 24%", "sistema: 13%", "MEMORIA", "9.0 GB de 16.0 GB", "activa: 7.5 GB",
          "Descarga: 2.4 MB/s", "Subida: 195 KB/s", "GPU", "Sistema: 75.2% usado, 118 GB libres de 476 GB",
          "INTERNET SPEED TEST", "Probar", "0 Mbps ↓"}) {
        EXPECT_TRUE(names.contains(name)) << name << "\n" << qPrintable(names.join("\n"));
    }
}

TEST_F(SystemViewTest, TheButtonStartsAndStopsTheTestByKeyboard) {
    showSystem();
    the("speedButton").forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    EXPECT_EQ(overview_.speedTester.phase(), SpeedTester::Phase::downloading);
    EXPECT_EQ(textOf("speedButton"), "Detener");
    press(Qt::Key_Return);
    machine_.mainLoop.run();
    EXPECT_NE(overview_.speedTester.phase(), SpeedTester::Phase::downloading);
}

TEST_F(SystemViewTest, TheNeedleTurnsToTheSpeed) {
    showSystem();
    auto* needle = qobject_cast<Needle*>(item("needle"));
    ASSERT_NE(needle, nullptr);
    EXPECT_DOUBLE_EQ(needle->angle(), -135);
    measureSpeed(std::chrono::seconds(16));  // 40 Mbps
    const double scale = tab_.speedTest()->scaleMax();
    const double expected = -135 + 270 * 40 / scale;
    double before = needle->angle();
    bool passedBetween = false;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            passedBetween = passedBetween || (needle->angle() > -135 && needle->angle() < expected - 1);
            EXPECT_GE(needle->angle(), before);
            before = needle->angle();
            return qAbs(needle->angle() - expected) < 0.01;
        },
        60'000));
    EXPECT_TRUE(passedBetween);
}

TEST_F(SystemViewTest, NothingIsRepaintedWhileNoFigureChanges) {
    showSystem();
    awaitSample();
    awaitSample();
    static_cast<void>(picture());
    QTest::qWait(300);
    int frames = 0;
    QObject::connect(&window_, &QQuickWindow::afterRendering, &window_, [&] { ++frames; });
    for (int sample = 0; sample < 5; ++sample) {
        awaitSample();
        QTest::qWait(30);
    }
    EXPECT_EQ(frames, 0);
    useProcessors(0.9, 0);
    awaitSample();
    EXPECT_TRUE(QTest::qWaitFor([&] { return frames > 0; }, 60'000));
}

// The tab "Disco".

TEST_F(SystemViewTest, BeforeAScanThereIsTheEmptyState) {
    showDisk();
    EXPECT_TRUE(the("empty").isVisible());
    EXPECT_FALSE(the("files").isVisible());
    const auto names = accessibleNames();
    EXPECT_TRUE(names.contains("ANÁLISIS DE DISCO"));
    EXPECT_TRUE(names.contains("Escanea Descargas · Escritorio · Documentos · Vídeos"));
    EXPECT_TRUE(names.contains("Analizar mi disco"));
}

TEST_F(SystemViewTest, AScanFillsBothLists) {
    showDisk();
    click(the("scan"));
    machine_.mainLoop.run();
    processEvents();
    EXPECT_FALSE(the("empty").isVisible());
    const auto names = accessibleNames();
    EXPECT_TRUE(names.contains("debian-12.7.0-amd64-DVD-1.iso: 3.7 GB, hace 7mes"));
    EXPECT_TRUE(names.contains("Boda de Ana: 5.5 GB")) << qPrintable(names.join("\n"));
    EXPECT_TRUE(names.contains("Mover a la Papelera: debian-12.7.0-amd64-DVD-1.iso"));
    EXPECT_TRUE(names.contains("RECUPERABLE: 8.8 GB")) << qPrintable(names.filter("RECUPERABLE").join("\n"));
}

TEST_F(SystemViewTest, EmptyListsHaveAWord) {
    machine_.userFolders.paths.clear();
    showDisk();
    click(the("scan"));
    machine_.mainLoop.run();
    processEvents();
    EXPECT_TRUE(the("noFiles").isVisible());
    EXPECT_TRUE(the("noFolders").isVisible());
}

TEST_F(SystemViewTest, TheButtonsOfAFileWorkByKeyboard) {
    showDisk();
    click(the("scan"));
    machine_.mainLoop.run();
    processEvents();
    const auto first = disk_.files()->index(0).data(RowListModel::rowRole).value<DiskRow>();
    auto& row = the(first.id);
    below(row, "reveal")->forceActiveFocus(Qt::TabFocusReason);
    press(Qt::Key_Return);
    EXPECT_EQ(machine_.desktop.revealed().size(), 1);
    press(Qt::Key_Tab);
    EXPECT_TRUE(below(row, "trash")->hasActiveFocus());
    press(Qt::Key_Space);
    ASSERT_EQ(questions_.size(), 1);
    EXPECT_EQ(questions_[0].name, first.name.toStdString());
    accept();
    EXPECT_EQ(machine_.trash.trashed.size(), 1);
}

TEST_F(SystemViewTest, ALongListHasOnlyTheRowsInView) {
    for (int file = 0; file < 100; ++file) {
        const auto now = machine_.clock.now();
        machine_.files.putSparse("/home/user/Descargas/" + std::to_string(file) + ".bin", 60 * 1024 * 1024,
                                 now, now);
    }
    showDisk({820, 560});
    click(the("scan"));
    machine_.mainLoop.run();
    processEvents();
    EXPECT_EQ(disk_.files()->rowCount(), 60);
    EXPECT_LT(the("files").childItems().size(), 40);
}

}  // namespace
}  // namespace tidewatch
