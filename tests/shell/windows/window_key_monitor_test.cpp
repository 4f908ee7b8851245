#include "shell/windows/window_key_monitor.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMenu>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtTest/QTest>
#include <string>

namespace tidewatch {
namespace {

/// A window that notes each key that reaches it.
class KeyWindow : public QQuickWindow {
public:
    KeyWindow() {
        resize(100, 100);
        show();
        requestActivate();
        if (!QTest::qWaitForWindowActive(this, 60'000)) qFatal("the window does not become active");
    }

    std::string reached;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        reached += '.';
        QQuickWindow::keyPressEvent(event);
    }
};

struct WindowKeyMonitorTest : testing::Test {
    /// Observes with a game that consumes some keys.
    [[nodiscard]] std::unique_ptr<KeyObservation> observe(KeyPress answer) {
        return monitor_.observe([this, answer](GameKey key) {
            seen_.push_back(key);
            return answer;
        });
    }

    WindowKeyMonitor monitor_;
    KeyWindow window_;
    std::vector<GameKey> seen_;
};

TEST_F(WindowKeyMonitorTest, SixKeysAreObserved) {
    const auto observation = observe(KeyPress::consumed);
    for (const auto key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Space, Qt::Key_P}) {
        QTest::keyClick(&window_, key);
    }
    EXPECT_EQ(seen_, (std::vector{GameKey::left, GameKey::right, GameKey::up, GameKey::down, GameKey::space,
                                  GameKey::p}));
    EXPECT_EQ(window_.reached, "") << "a consumed key reaches nobody else";
}

TEST_F(WindowKeyMonitorTest, APassedOnKeyTakesItsOrdinaryWay) {
    const auto observation = observe(KeyPress::passedOn);
    QTest::keyClick(&window_, Qt::Key_Left);
    EXPECT_EQ(seen_.size(), 1u);
    EXPECT_EQ(window_.reached.size(), 1u);
}

TEST_F(WindowKeyMonitorTest, OtherKeysAreNotObserved) {
    const auto observation = observe(KeyPress::consumed);
    QTest::keyClick(&window_, Qt::Key_A);
    QTest::keyClick(&window_, Qt::Key_Return);
    QTest::keyClick(&window_, Qt::Key_Tab);
    EXPECT_TRUE(seen_.empty());
    EXPECT_EQ(window_.reached.size(), 3u);
}

TEST_F(WindowKeyMonitorTest, RepetitionsAreObservedAndReleasesAreNot) {
    const auto observation = observe(KeyPress::consumed);
    QTest::keyPress(&window_, Qt::Key_Left);
    QKeyEvent repetition(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier, {}, true);
    QCoreApplication::sendEvent(&window_, &repetition);
    QTest::keyRelease(&window_, Qt::Key_Left);
    EXPECT_EQ(seen_.size(), 2u);
}

TEST_F(WindowKeyMonitorTest, AnEndedObservationSeesNothing) {
    auto observation = observe(KeyPress::consumed);
    observation.reset();
    QTest::keyClick(&window_, Qt::Key_Left);
    EXPECT_TRUE(seen_.empty());
    EXPECT_EQ(window_.reached.size(), 1u);
}

TEST_F(WindowKeyMonitorTest, AHandlerMayEndItsObservation) {
    std::unique_ptr<KeyObservation> observation;
    int calls = 0;
    observation = monitor_.observe([&](GameKey) {
        ++calls;
        observation.reset();
        return KeyPress::consumed;
    });
    QTest::keyClick(&window_, Qt::Key_Space);
    QTest::keyClick(&window_, Qt::Key_Space);
    EXPECT_EQ(calls, 1);
}

TEST_F(WindowKeyMonitorTest, TheFirstThatConsumesAPressKeepsItFromTheOthers) {
    const auto first = observe(KeyPress::passedOn);
    const auto second = observe(KeyPress::consumed);
    const auto third = observe(KeyPress::consumed);
    QTest::keyClick(&window_, Qt::Key_Left);
    EXPECT_EQ(seen_.size(), 2u);
}

TEST_F(WindowKeyMonitorTest, ItIsSilentWhileATextFieldOfAViewHasTheFocus) {
    const auto observation = observe(KeyPress::consumed);
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nTextInput { width: 90; height: 20; text: \"x\" }", QUrl());
    const std::unique_ptr<QQuickItem> field(qobject_cast<QQuickItem*>(component.create()));
    ASSERT_NE(field, nullptr) << component.errorString().toStdString();
    field->setParentItem(window_.contentItem());
    field->forceActiveFocus();
    QTest::keyClick(&window_, Qt::Key_P);
    QTest::keyClick(&window_, Qt::Key_Space);
    EXPECT_TRUE(seen_.empty());
    EXPECT_EQ(field->property("text").toString(), "xp ");
    field->setFocus(false);
    QTest::keyClick(&window_, Qt::Key_P);
    EXPECT_EQ(seen_.size(), 1u);
}

TEST_F(WindowKeyMonitorTest, ItIsSilentWhileATextFieldOfADialogHasTheFocus) {
    const auto observation = observe(KeyPress::consumed);
    QLineEdit field;
    field.show();
    field.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&field, 60'000));
    field.setFocus();
    QTest::keyClick(field.windowHandle(), Qt::Key_P);
    EXPECT_TRUE(seen_.empty());
    EXPECT_EQ(field.text(), "p");
}

TEST_F(WindowKeyMonitorTest, ItIsSilentWhileAMenuIsOpen) {
    const auto observation = observe(KeyPress::consumed);
    QMenu menu;
    menu.addAction("row");
    menu.popup({0, 0});
    QTest::keyClick(&window_, Qt::Key_Down);
    EXPECT_TRUE(seen_.empty());
    menu.close();
    QTest::keyClick(&window_, Qt::Key_Down);
    EXPECT_EQ(seen_.size(), 1u);
}

}  // namespace
}  // namespace tidewatch
