// The mini-arcade: a sheet with all its states for each theme.

#include <QtTest/QTest>
#include <map>

#include "ui/gallery.h"
#include "wellbeing/views/games/games_scene.h"

namespace tidewatch {
namespace {

const std::vector<GalleryState<GamesScene>> states{
    {"charging",
     [](GamesScene& world) {
         world.charge(2 * 600 + 77);
         world.presenter_.setVisible(true);
     }},
    {"locked",
     [](GamesScene& world) {
         world.play();
         world.presenter_.leave();
     }},
    {"ready", [](GamesScene& world) { world.presenter_.setVisible(true); }},
    {"tetris", [](GamesScene& world) { world.playSomeTetris(); }},
    {"tetris-paused",
     [](GamesScene& world) {
         world.playSomeTetris();
         world.pressKeys("p");
     }},
    {"tetris-over", [](GamesScene& world) { world.loseTetris(); }},
    {"bricks-ready",
     [](GamesScene& world) {
         world.presenter_.switchGame();
         world.play();
     }},
    {"bricks", [](GamesScene& world) { world.playSomeBricks(); }},
    {"bricks-paused",
     [](GamesScene& world) {
         world.playSomeBricks();
         world.presenter_.breakout()->press(0);
     }},
    {"bricks-over", [](GamesScene& world) { world.loseBricks(); }},
};

constexpr int columns = 5;

}  // namespace

void paint(Gallery& gallery) {
    std::map<QString, std::vector<QImage>> picturesByTheme;
    gallery.paintStates(states, [&](GamesScene& scene, const QString&, const QString& theme) {
        scene.showPanel();
        QTest::qWait(50);
        picturesByTheme[theme].push_back(scene.picture());
    });
    for (const auto& [theme, pictures] : picturesByTheme) gallery.save(sheetOf(pictures, columns), theme);
}

}  // namespace tidewatch
