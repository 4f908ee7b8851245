// Paints the mini-arcade in every theme and state into pictures: games_gallery FOLDER

#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QtTest/QTest>
#include <cstdio>
#include <vector>

#include "ui/style/fonts.h"
#include "wellbeing/views/games/games_scene.h"

namespace tidewatch {
namespace {

struct State {
    const char* name;
    void (*reach)(GamesWorld& world);
};

constexpr State states[]{
    {"charging",
     [](GamesWorld& world) {
         world.charge(2 * 600 + 77);
         world.presenter_.setVisible(true);
     }},
    {"locked",
     [](GamesWorld& world) {
         world.play();
         world.presenter_.leave();
     }},
    {"ready", [](GamesWorld& world) { world.presenter_.setVisible(true); }},
    {"tetris", [](GamesWorld& world) { world.playSomeTetris(); }},
    {"tetris-paused",
     [](GamesWorld& world) {
         world.playSomeTetris();
         world.pressKeys("p");
     }},
    {"tetris-over", [](GamesWorld& world) { world.loseTetris(); }},
    {"bricks-ready",
     [](GamesWorld& world) {
         world.presenter_.switchGame();
         world.play();
     }},
    {"bricks", [](GamesWorld& world) { world.playSomeBricks(); }},
    {"bricks-paused",
     [](GamesWorld& world) {
         world.playSomeBricks();
         world.presenter_.breakout()->press(0);
     }},
    {"bricks-over", [](GamesWorld& world) { world.loseBricks(); }},
};

int paintAll(const QString& path) {
    const QDir folder(path);
    if (!folder.mkpath(".")) return 1;
    int warnings = 0;
    const ThemeRegistry themes;
    for (const auto& theme : themes.themes()) {
        std::vector<QImage> pictures;
        for (const auto& [name, reach] : states) {
            GamesScene scene;
            scene.theme_.switchTo(theme.id);
            reach(scene);
            scene.showPanel();
            QTest::qWait(50);
            pictures.push_back(scene.picture());
            for (const auto& warning : scene.viewWarnings_) std::fprintf(stderr, "%s\n", qPrintable(warning));
            warnings += static_cast<int>(scene.viewWarnings_.size());
        }
        // All states of a theme beside one another.
        const auto one = pictures.front().size();
        const int count = static_cast<int>(pictures.size());
        QImage sheet(one.width() * (count / 2), one.height() * 2, QImage::Format_RGB32);
        QPainter painter(&sheet);
        for (int i = 0; i < count; ++i) {
            auto& picture = pictures[static_cast<std::size_t>(i)];
            picture.setDevicePixelRatio(1);
            painter.drawImage(i % (count / 2) * one.width(), i / (count / 2) * one.height(), picture);
        }
        painter.end();
        sheet.save(folder.filePath(QString::fromStdString(theme.id) + ".png"));
    }
    return warnings == 0 ? 0 : 1;
}

}  // namespace
}  // namespace tidewatch

int main(int argc, char* argv[]) {
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    if (application.arguments().size() != 2) {
        std::fprintf(stderr, "usage: games_gallery FOLDER\n");
        return 2;
    }
    tidewatch::registerFonts();
    return tidewatch::paintAll(application.arguments().at(1));
}
