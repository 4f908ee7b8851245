// Paints the break alert in every theme, with another exercise in each, into pictures: break_gallery FOLDER

#include <QDir>
#include <QGuiApplication>
#include <QtTest/QTest>
#include <cstdio>

#include "ui/style/fonts.h"
#include "wellbeing/views/break_scene.h"

namespace tidewatch {
namespace {

constexpr QSize smallestWindow(820, 560);
constexpr QSize largeWindow(1100, 720);

int paintAll(const QString& path) {
    const QDir folder(path);
    if (!folder.mkpath(".")) return 1;
    BreakScene scene;
    bool longDay = false;
    for (const auto& theme : scene.themes_.themes()) {
        scene.theme_.switchTo(theme.id);
        if (longDay) {
            scene.sitUntilAlert(11);
        } else {
            scene.sitUntilAlert();
        }
        scene.showWindow(longDay ? smallestWindow : largeWindow);
        QTest::qWait(300);
        scene.picture().save(folder.filePath(QString::fromStdString(theme.id) + ".png"));
        scene.presenter_.dismiss();
        longDay = !longDay;
    }
    for (const auto& warning : scene.viewWarnings_) std::fprintf(stderr, "%s\n", qPrintable(warning));
    return scene.viewWarnings_.isEmpty() ? 0 : 1;
}

}  // namespace
}  // namespace tidewatch

int main(int argc, char* argv[]) {
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    if (application.arguments().size() != 2) {
        std::fprintf(stderr, "usage: break_gallery FOLDER\n");
        return 2;
    }
    tidewatch::registerFonts();
    return tidewatch::paintAll(application.arguments().at(1));
}
