#include <gtest/gtest.h>

#include <QAccessible>
#include <QCoreApplication>
#include <QSignalSpy>
#include <QtTest/QTest>
#include <chrono>

#include "wellbeing/views/games/games_scene.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;

struct GamesPanelTest : testing::Test, GamesScene {
    GamesPanelTest() { QAccessible::setActive(true); }
    ~GamesPanelTest() override {
        EXPECT_TRUE(viewWarnings_.isEmpty()) << viewWarnings_.join("\n").toStdString();
    }

    [[nodiscard]] QQuickItem& the(const char* name) const { return *item(name); }
    [[nodiscard]] bool isShown(const char* name) const {
        return item(name) != nullptr && item(name)->isVisible();
    }
    [[nodiscard]] QString shownText(const char* name) const { return the(name).property("text").toString(); }
    [[nodiscard]] static QString nameOf(QQuickItem& shown) {
        return QAccessible::queryAccessibleInterface(&shown)->text(QAccessible::Name);
    }
    [[nodiscard]] const TetrisModel& tetris() { return presenter_.tetris()->model(); }
    [[nodiscard]] const BreakoutModel& bricks() { return presenter_.breakout()->model(); }

    /// The colour of the board's cell, beside the mark in its middle.
    [[nodiscard]] QColor colorOfCell(int row, int column) { return colorInCell(row, column, 0.25); }
    [[nodiscard]] QColor colorInCell(int row, int column, double place) {
        constexpr double cell = 15;
        const auto at = the("tetrisField").mapToScene({(column + place) * cell, (row + place) * cell});
        const auto seen = picture();
        // Not rounded, so that the middle of an odd number of pixels is the one in the middle.
        const auto pixel = at * seen.devicePixelRatio();
        return seen.pixelColor(static_cast<int>(pixel.x()), static_cast<int>(pixel.y()));
    }

    /// What is on the screen must be what a fresh drawing of everything gives.
    void expectNothingStale(const char* field) {
        const auto repainted = picture();
        the(field).update();
        const auto fresh = picture();
        EXPECT_EQ(repainted, fresh);
    }
};

TEST_F(GamesPanelTest, TheArrowsSwitchTheGame) {
    presenter_.setVisible(true);
    showPanel();
    EXPECT_EQ(shownText("game"), "TETRIS");
    click(the("next"));
    EXPECT_EQ(shownText("game"), "BRICKS");
    EXPECT_EQ(shownText("play"), "JUGAR BRICKS");
    click(the("previous"));
    EXPECT_EQ(shownText("game"), "TETRIS");
}

TEST_F(GamesPanelTest, AClickOnPlayShowsTheBoardAndTheControlsInPlaceOfTheGate) {
    presenter_.setVisible(true);
    showPanel();
    EXPECT_TRUE(isShown("gate"));
    click(the("play"));
    EXPECT_FALSE(isShown("gate"));
    EXPECT_FALSE(isShown("next")) << "the arrows are gone during a session";
    EXPECT_FALSE(isShown("previous"));
    EXPECT_TRUE(isShown("tetris"));
    EXPECT_FALSE(isShown("breakout"));
    EXPECT_TRUE(isShown("control4"));
    EXPECT_EQ(tetris().state(), TetrisModel::State::playing);
}

TEST_F(GamesPanelTest, EveryFaceOfTheGateHasItsParts) {
    presenter_.setVisible(true);
    showPanel();
    EXPECT_TRUE(isShown("play"));
    EXPECT_FALSE(isShown("charge"));
    EXPECT_FALSE(isShown("gateTime"));
    presenter_.play();
    presenter_.leave();
    EXPECT_FALSE(isShown("play"));
    EXPECT_FALSE(isShown("charge"));
    EXPECT_TRUE(isShown("gateTime"));
    wait(2h);
    EXPECT_FALSE(isShown("play"));
    EXPECT_TRUE(isShown("charge"));
    EXPECT_TRUE(isShown("gateTime"));
    EXPECT_EQ(the("charge").width(), 110);
    EXPECT_EQ(the("charge").height(), 6);
}

TEST_F(GamesPanelTest, TheButtonsPlayTheGame) {
    random_.addPieces("IITT");
    play();
    showPanel();
    click(the("control1"));
    EXPECT_EQ(tetris().falling().column, 2);
    click(the("control2"));
    EXPECT_EQ(tetris().falling().rot, 1);
    click(the("control0"));
    EXPECT_EQ(tetris().state(), TetrisModel::State::paused);
    EXPECT_EQ(shownText("overlayTitle"), "PAUSA");
}

TEST_F(GamesPanelTest, ALostGameHasOneButtonWhichLeaves) {
    loseTetris();
    showPanel();
    EXPECT_EQ(item("control0"), nullptr);
    EXPECT_EQ(shownText("overlayTitle"), "GAME OVER");
    EXPECT_EQ(shownText("leave"), "Salir");
    click(the("leave"));
    EXPECT_FALSE(gate_.playingNow());
    EXPECT_TRUE(isShown("gate"));
}

TEST_F(GamesPanelTest, EveryControlIsReachedByKeyboard) {
    presenter_.setVisible(true);
    showPanel();
    QStringList reached;
    for (int i = 0; i < 3; ++i) {
        press(Qt::Key_Tab);
        reached.append(nameOf(*window_.activeFocusItem()));
    }
    EXPECT_EQ(reached, QStringList({"Juego anterior", "Juego siguiente", "JUGAR TETRIS"}));
    press(Qt::Key_Return);
    reached.clear();
    for (int i = 0; i < 5; ++i) {
        press(Qt::Key_Tab);
        reached.append(nameOf(*window_.activeFocusItem()));
    }
    EXPECT_EQ(reached, QStringList({"Pausa", "Izquierda", "Girar", "Bajar", "Derecha"}));
}

TEST_F(GamesPanelTest, ScreenReadersHearTheGameAndItsNumbers) {
    playSomeTetris();
    showPanel();
    EXPECT_EQ(nameOf(the("panel")), "Mini-Arcade");
    EXPECT_EQ(nameOf(the("tetrisField")), "Tetris, en juego");
    EXPECT_EQ(nameOf(the("score")), "Puntaje: " + QString::number(tetris().score()));
    EXPECT_EQ(nameOf(the("lines")), "Líneas: 1");
    EXPECT_EQ(nameOf(the("tetrisLevel")), "Nivel: 1");
    EXPECT_EQ(nameOf(the("tetrisBest")), "Récord: 0");
    EXPECT_EQ(nameOf(the("nextPiece")), "Siguiente pieza: L");
    pressKeys("p");
    EXPECT_EQ(nameOf(the("tetrisField")), "Tetris, en pausa");
}

TEST_F(GamesPanelTest, ScreenReadersHearTheBrickGame) {
    playSomeBricks();
    showPanel();
    EXPECT_EQ(nameOf(the("breakoutField")), "Bricks, en juego");
    EXPECT_EQ(nameOf(the("lives")), "Vidas: 3");
    EXPECT_EQ(nameOf(the("breakoutLevel")), "Nivel: 1");
}

TEST_F(GamesPanelTest, ThePaddleFollowsADragAtOnce) {
    presenter_.switchGame();
    play();
    showPanel();
    auto& field = the("breakoutField");
    const auto at = [&](double x) { return field.mapToScene({x, 200}).toPoint(); };
    QTest::mousePress(&window_, Qt::LeftButton, Qt::NoModifier, at(60));
    EXPECT_EQ(bricks().paddleX(), 60);
    QTest::mouseMove(&window_, at(100));
    EXPECT_EQ(bricks().paddleX(), 100);
    QTest::mouseMove(&window_, at(148));
    EXPECT_EQ(bricks().paddleX(), 130);
    QTest::mouseRelease(&window_, Qt::LeftButton, Qt::NoModifier, at(148));
    QTest::mouseMove(&window_, at(50));
    EXPECT_EQ(bricks().paddleX(), 130);
}

TEST_F(GamesPanelTest, NothingStaleIsLeftOnTheTetrisBoard) {
    playSomeTetris();
    showPanel();
    static_cast<void>(picture());
    for (const char* presses : {"<", "^", ">>", "v", "_", "v>", "_", "<<_"}) {
        pressKeys(presses);
        expectNothingStale("tetrisField");
    }
}

TEST_F(GamesPanelTest, NothingStaleIsLeftOnTheBricksBoard) {
    playSomeBricks();
    showPanel();
    static_cast<void>(picture());
    for (int i = 0; i < 20; ++i) {
        pressKeys(i % 3 == 0 ? "<" : ">");
        wait(100ms);
        expectNothingStale("breakoutField");
    }
}

TEST_F(GamesPanelTest, ABoardAtRestIsNotPainted) {
    playSomeTetris();
    showPanel();
    static_cast<void>(picture());
    QCoreApplication::processEvents();
    QSignalSpy frames(&window_, &QQuickWindow::frameSwapped);
    pressKeys("p");
    ASSERT_TRUE(QTest::qWaitFor([&] { return frames.count() > 0; }, 60'000));
    QTest::qWait(50);
    const auto before = frames.count();
    wait(1min);
    QTest::qWait(100);
    EXPECT_EQ(frames.count(), before);
}

TEST_F(GamesPanelTest, FewColoursWrapAndWithoutAnyThePiecesArePlain) {
    random_.addPieces("IIZT");
    play();
    showPanel();
    auto& field = the("tetrisField");
    const auto colorOfThePiece = [&] { return colorOfCell(0, 3); };
    field.setProperty("pieceColors", QVariant::fromValue(QList<QColor>{Qt::red, Qt::green, Qt::blue}));
    EXPECT_EQ(colorOfThePiece(), QColor(Qt::red)) << "the seventh of three";
    field.setProperty("pieceColors", QVariant::fromValue(QList<QColor>{}));
    field.setProperty("plainColor", QColor(Qt::yellow));
    EXPECT_EQ(colorOfThePiece(), QColor(Qt::yellow));
}

TEST_F(GamesPanelTest, EveryThemeDrawsItsOwnColours) {
    random_.addPieces("IIOT");
    play();
    showPanel();
    for (const auto& theme : themes_.themes()) {
        theme_.switchTo(theme.id);
        const auto& piece = theme.dashboard.gamePieces[3];
        const auto color = colorOfCell(0, 3);
        EXPECT_NEAR(color.redF(), piece.red, 0.01) << theme.id;
        EXPECT_NEAR(color.greenF(), piece.green, 0.01) << theme.id;
        EXPECT_NEAR(color.blueF(), piece.blue, 0.01) << theme.id;
    }
}

TEST_F(GamesPanelTest, PiecesOfSimilarColoursCarryMarks) {
    random_.addPieces("JJISOO");
    play();
    showPanel();
    const auto isMarked = [&](int row, int column) {
        return colorInCell(row, column, 0.5) != colorOfCell(row, column);
    };
    EXPECT_FALSE(isMarked(1, 3)) << "the bar";
    pressKeys("_");
    EXPECT_TRUE(isMarked(1, 3)) << "S";
    pressKeys("_");
    EXPECT_TRUE(isMarked(1, 3)) << "the square";
    EXPECT_FALSE(isMarked(14, 3)) << "its ghost";
}

TEST_F(GamesPanelTest, EverythingFitsIntoTheWidget) {
    playSomeTetris();
    showPanel();
    EXPECT_LE(the("panel").implicitHeight(), 374);
    EXPECT_LE(the("panel").implicitWidth(), 214);
    const auto board = placeOf(the("nextPiece"));
    const auto lines = placeOf(the("lines"));
    EXPECT_GT(lines.left(), board.right()) << "the numbers leave room for the next piece";
}

}  // namespace
}  // namespace tidewatch
