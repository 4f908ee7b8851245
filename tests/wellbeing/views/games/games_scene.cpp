#include "wellbeing/views/games/games_scene.h"

#include <chrono>

namespace tidewatch {
namespace {

using namespace std::chrono_literals;

constexpr auto window = R"(
import Tidewatch.Wellbeing

Item {
    id: window
    required property GamesPresenter presenter
    anchors.fill: parent
    DashboardBackground { anchors.fill: parent }
    GamesPanel { objectName: "panel"; anchors.fill: parent; presenter: window.presenter }
}
)";

}  // namespace

void GamesWorld::charge(int seconds) {
    if (gate_.startPlay()) gate_.endPlay();
    machine_.clock.advance(2h);
    for (int i = 0; i < seconds; ++i) gate_.tickWorkSecond();
    gate_.refresh();
}

void GamesWorld::play() {
    presenter_.setVisible(true);
    presenter_.play();
}

void GamesWorld::pressKeys(std::string_view presses) {
    for (const char each : presses) {
        keys_.press(each == '<'   ? GameKey::left
                    : each == '>' ? GameKey::right
                    : each == 'v' ? GameKey::down
                    : each == '^' ? GameKey::up
                    : each == '_' ? GameKey::space
                                  : GameKey::p);
    }
}

void GamesWorld::playSomeTetris() {
    // The first two are drawn by the reset before the game.
    random_.addPieces(
        "II"
        "IIOLJSZTOLI");
    random_.thenAlwaysPiece('T');
    play();
    pressKeys("<<<_>_>>>>>_<<<_^>_>>>_^<<_>>_vvv");
}

void GamesWorld::loseTetris() {
    playSomeTetris();
    for (int i = 0; i < 40; ++i) pressKeys("_");
}

void GamesWorld::playSomeBricks() {
    random_.thenAlways(1);
    presenter_.switchGame();
    play();
    auto& game = *presenter_.breakout();
    pressKeys("_");
    for (int i = 0; i < 1200; ++i) {
        game.setPaddle(game.model().ball().x + (i % 40 < 20 ? 8 : -11));
        wait(17ms);
    }
}

void GamesWorld::loseBricks() {
    playSomeBricks();
    auto& game = *presenter_.breakout();
    for (int i = 0; i < 3000 && !game.over(); ++i) {
        pressKeys("_");
        game.setPaddle(game.model().ball().x < 75 ? 130 : 20);
        wait(17ms);
    }
}

GamesScene::~GamesScene() {
    // The view before its presenter.
    view_.reset();
}

void GamesScene::showPanel(QSize size) {
    show(window, size, {{"presenter", QVariant::fromValue(&presenter_)}});
}

}  // namespace tidewatch
