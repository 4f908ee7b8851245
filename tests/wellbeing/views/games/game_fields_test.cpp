#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <chrono>
#include <utility>

#include "wellbeing/views/games/breakout_field_view.h"
#include "wellbeing/views/games/games_scene.h"
#include "wellbeing/views/games/next_piece.h"
#include "wellbeing/views/games/tetris_field.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;

/// Remembers what it was asked to paint.
template <class Field>
class Recording final : public Field {
public:
    [[nodiscard]] QRectF takePainted() { return std::exchange(painted_, {}); }

protected:
    void paintField(QPainter& painter, const QRectF& dirty) override {
        painted_ |= dirty;
        Field::paintField(painter, dirty);
    }

private:
    QRectF painted_;
};

struct GameFieldsTest : testing::Test, GamesScene {
    /// Shows a field alone.
    template <class Field, class Presenter>
    void showField(Field& field, Presenter* presenter) {
        show("Item { anchors.fill: parent }", {214, 374});
        field.setParentItem(view_.get());
        field.setSize({field.implicitWidth(), field.implicitHeight()});
        field.setPresenter(presenter);
        static_cast<void>(picture());
        static_cast<void>(field.takePainted());
    }

    template <class Field>
    [[nodiscard]] QRectF paintedBy(Field& field) {
        static_cast<void>(picture());
        return field.takePainted();
    }
};

TEST_F(GameFieldsTest, AStepOfTheBallRepaintsItsSurroundingsAlone) {
    random_.thenAlways(1);
    presenter_.switchGame();
    play();
    pressKeys("_");
    wait(300ms);
    Recording<BreakoutFieldView> field;
    showField(field, presenter_.breakout());
    const auto before = presenter_.breakout()->model().ball();
    wait(17ms);
    const auto after = presenter_.breakout()->model().ball();
    ASSERT_NE(before, after);
    const auto painted = paintedBy(field);
    EXPECT_TRUE(painted.contains(QRectF(after.x - 4, after.y - 4, 8, 8)));
    EXPECT_TRUE(painted.contains(QRectF(before.x - 4, before.y - 4, 8, 8)));
    EXPECT_LE(painted.width(), 8 + 0.4 + 4);
    EXPECT_LE(painted.height(), 8 + 2.8 + 4);
}

TEST_F(GameFieldsTest, APaddleThatMovesRepaintsItsSurroundingsAlone) {
    presenter_.switchGame();
    play();
    pressKeys("_");
    wait(300ms);
    presenter_.breakout()->press(0);
    Recording<BreakoutFieldView> field;
    showField(field, presenter_.breakout());
    presenter_.breakout()->setPaddle(60);
    const auto painted = paintedBy(field);
    EXPECT_TRUE(painted.contains(QRectF(40, 232.5, 55, 7)));
    EXPECT_LE(painted.width(), 55 + 4);
    EXPECT_LE(painted.height(), 7 + 4);
}

TEST_F(GameFieldsTest, StepsBeforeTheLaunchRepaintNothing) {
    presenter_.switchGame();
    play();
    Recording<BreakoutFieldView> field;
    showField(field, presenter_.breakout());
    wait(1s);
    EXPECT_TRUE(paintedBy(field).isEmpty());
}

TEST_F(GameFieldsTest, AFieldIsPaintedOnlyWhileItIsVisibleAndThenAllOfIt) {
    presenter_.switchGame();
    play();
    pressKeys("_");
    wait(300ms);
    Recording<BreakoutFieldView> field;
    showField(field, presenter_.breakout());
    field.setVisible(false);
    presenter_.breakout()->setPaddle(60);
    EXPECT_TRUE(paintedBy(field).isEmpty());
    field.setVisible(true);
    presenter_.breakout()->setPaddle(90);
    EXPECT_TRUE(paintedBy(field).contains(QRectF(QPointF(), field.drawingSize())));
}

TEST_F(GameFieldsTest, APieceThatMovesRepaintsItsColumnsAlone) {
    random_.addPieces("JJOT");
    play();
    Recording<TetrisField> field;
    showField(field, presenter_.tetris());
    pressKeys("<");
    const auto painted = paintedBy(field);
    EXPECT_TRUE(painted.contains(QRectF(2 * 15, 0, 3 * 15, 2 * 15)));
    EXPECT_TRUE(painted.contains(QRectF(2 * 15, 16 * 15, 3 * 15, 2 * 15))) << "the ghost";
    EXPECT_LE(painted.width(), 3 * 15 + 4);
}

TEST_F(GameFieldsTest, TheNextPieceIsRepaintedWhenItChanges) {
    random_.addPieces("JJOTZ");
    play();
    Recording<NextPiece> field;
    showField(field, presenter_.tetris());
    pressKeys("<");
    EXPECT_TRUE(paintedBy(field).isEmpty());
    pressKeys("_");
    EXPECT_FALSE(paintedBy(field).isEmpty());
}

TEST_F(GameFieldsTest, ABoardAtRestRepaintsNothing) {
    playSomeTetris();
    pressKeys("p");
    Recording<TetrisField> field;
    showField(field, presenter_.tetris());
    wait(1min);
    pressKeys("<v^_");
    EXPECT_TRUE(paintedBy(field).isEmpty());
}

}  // namespace
}  // namespace tidewatch
