#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QWheelEvent>
#include <QtTest/QTest>

#include "ui/ui_scene.h"

namespace tidewatch {
namespace {

/// Twenty buttons of 30 in a pane of 200: it overflows by 400.
constexpr auto buttons = R"(
Item {
    property alias y0: pane.contentY
    width: 300; height: 200
    ScrollPane {
        id: pane
        objectName: "pane"
        anchors.fill: parent
        Repeater {
            model: 20
            TextButton {
                required property int index
                property int clicks: 0
                objectName: "button" + index
                width: 200; height: 30; text: index
                onClicked: ++clicks
            }
        }
    }
})";

struct ScrollPaneTest : testing::Test, UiScene {
    ~ScrollPaneTest() override {
        EXPECT_TRUE(viewWarnings_.isEmpty()) << viewWarnings_.join("\n").toStdString();
    }

    void SetUp() override { show(buttons, {300, 200}); }

    [[nodiscard]] double contentY() const { return seen("y0").toDouble(); }

    /// Whether the pane scrolls to that position and stays there.
    [[nodiscard]] bool restsAt(double y) const {
        if (!QTest::qWaitFor([&] { return contentY() == y; }, 60'000)) return false;
        QTest::qWait(200);
        return contentY() == y;
    }

    void turnWheel(QPoint pixels, QPoint angle) {
        const QPointF place(100, 100);
        QWheelEvent event(place, window_.mapToGlobal(place), pixels, angle, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&window_, &event);
    }

    [[nodiscard]] bool inView(const QString& name) const {
        const auto place = placeOf(*item(name));
        return place.top() >= 0 && place.bottom() <= 200;
    }
};

TEST_F(ScrollPaneTest, AWheelScrolls) {
    turnWheel({}, {0, -120});
    EXPECT_TRUE(restsAt(96)) << contentY();
    turnWheel({}, {0, 120});
    EXPECT_TRUE(restsAt(0)) << contentY();
}

TEST_F(ScrollPaneTest, NotchesOfTheWheelInARowAddUp) {
    turnWheel({}, {0, -120});
    turnWheel({}, {0, -120});
    EXPECT_TRUE(restsAt(192)) << contentY();
}

TEST_F(ScrollPaneTest, ATouchPadScrollsByPixelsAtOnce) {
    turnWheel({0, -30}, {0, -60});
    EXPECT_EQ(contentY(), 30);
}

TEST_F(ScrollPaneTest, NothingScrollsBeyondTheEnds) {
    turnWheel({0, 500}, {0, 500});
    EXPECT_EQ(contentY(), 0);
    turnWheel({0, -5000}, {0, -5000});
    EXPECT_EQ(contentY(), 400);
    turnWheel({}, {0, -120});
    EXPECT_TRUE(restsAt(400)) << contentY();
}

TEST_F(ScrollPaneTest, TheMouseDoesNotDragIt) {
    QTest::mousePress(&window_, Qt::LeftButton, Qt::NoModifier, {250, 150});
    for (int y = 140; y >= 20; y -= 10) QTest::mouseMove(&window_, {250, y});
    QTest::mouseRelease(&window_, Qt::LeftButton, Qt::NoModifier, {250, 20});
    EXPECT_TRUE(restsAt(0)) << contentY();
}

TEST_F(ScrollPaneTest, KeysThatTheContentLeavesOverScroll) {
    click(*item("button0"));
    press(Qt::Key_Down);
    EXPECT_TRUE(restsAt(48)) << contentY();
    press(Qt::Key_PageDown);
    EXPECT_TRUE(restsAt(48 + 152)) << contentY();
    press(Qt::Key_Up);
    EXPECT_TRUE(restsAt(152)) << contentY();
    press(Qt::Key_PageUp);
    EXPECT_TRUE(restsAt(0)) << contentY();
    press(Qt::Key_End);
    EXPECT_EQ(contentY(), 400);
    press(Qt::Key_Home);
    EXPECT_EQ(contentY(), 0);
}

TEST_F(ScrollPaneTest, TheTabulatorBringsWhatItReachesIntoView) {
    press(Qt::Key_Tab);
    EXPECT_TRUE(item("pane")->hasActiveFocus())
        << "so that it can be scrolled when it holds nothing to reach";
    for (int i = 0; i < 20; ++i) {
        press(Qt::Key_Tab);
        const auto name = QString("button%1").arg(i);
        ASSERT_TRUE(item(name)->hasActiveFocus()) << i;
        EXPECT_TRUE(inView(name)) << i;
    }
    EXPECT_EQ(contentY(), 400);
    for (int i = 18; i >= 0; --i) {
        press(Qt::Key_Tab, Qt::ShiftModifier);
        EXPECT_TRUE(inView(QString("button%1").arg(i))) << i;
    }
    EXPECT_EQ(contentY(), 0);
}

TEST_F(ScrollPaneTest, WhatIsClickedDoesNotSlipAwayUnderThePointer) {
    auto& button = *item("button6");
    EXPECT_FALSE(inView("button6"));
    click(button, {20, 5});
    EXPECT_EQ(button.property("clicks").toInt(), 1);
    EXPECT_EQ(contentY(), 0);
}

TEST_F(ScrollPaneTest, AShorterContentDoesNotLeaveItBelowTheEnd) {
    press(Qt::Key_Tab);
    press(Qt::Key_End);
    EXPECT_EQ(contentY(), 400);
    for (int i = 10; i < 20; ++i) item(QString("button%1").arg(i))->setVisible(false);
    EXPECT_TRUE(restsAt(100)) << contentY();
}

TEST_F(ScrollPaneTest, AChangeOfTheContentKeepsThePlace) {
    turnWheel({0, -120}, {0, -120});
    item("button19")->setHeight(90);
    EXPECT_TRUE(restsAt(120)) << contentY();
}

TEST_F(ScrollPaneTest, WhatFitsIsNoStopOfTheTabulator) {
    show("ScrollPane { width: 200; height: 200; TextButton { objectName: 'only'; text: 'a' } }");
    press(Qt::Key_Tab);
    EXPECT_TRUE(item("only")->hasActiveFocus());
}

TEST_F(ScrollPaneTest, TheBarScrolls) {
    turnWheel({0, -1}, {0, -1});
    QTest::mousePress(&window_, Qt::LeftButton, Qt::NoModifier, {294, 10});
    for (int y = 20; y <= 190; y += 10) QTest::mouseMove(&window_, {294, y});
    QTest::mouseRelease(&window_, Qt::LeftButton, Qt::NoModifier, {294, 190});
    EXPECT_GT(contentY(), 300);
}

}  // namespace
}  // namespace tidewatch
