#include "shell/windows/quick_floating_window.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <limits>
#include <memory>
#include <optional>

#include "tests/support/fake_world.h"

namespace tidewatch {
namespace {

/// A control of a window's content: takes the left button.
class Control final : public QQuickItem {
public:
    Control() { setAcceptedMouseButtons(Qt::LeftButton); }
    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent*) override { ++presses; }
};

class QuickFloatingWindowTest : public testing::Test {
protected:
    std::unique_ptr<QuickFloatingWindow> make(PanelSize size, WindowLayer layer = WindowLayer::above,
                                              std::unique_ptr<QQuickItem> item = nullptr) {
        if (!item) item = std::make_unique<QQuickItem>();
        return std::make_unique<QuickFloatingWindow>(
            machine_.windowSystem, layer,
            QuickFloatingWindow::Content{
                .title = "Nota",
                .item = std::move(item),
                .cornerRadius = [](PanelSize) { return 8.0; },
                .setTranslucent = [this](bool translucent) { translucent_ = translucent; },
                .setOnScreen = [](bool) {},
            },
            size);
    }

    /// Records what the mouse does to the window itself.
    void record(QuickFloatingWindow& window) {
        window.setGestures({
            .mouseDown = [this](platform::Point) { gestures_.append("down"); },
            .mouseDragged = [this](platform::Point) { gestures_.append("drag"); },
            .mouseUp = [this](platform::Point) { gestures_.append("up"); },
            .menuRequested = nullptr,
        });
    }

    static QSize screen() { return QGuiApplication::primaryScreen()->size(); }

    static double proportions(PanelSize size) { return size.width / size.height; }

    test::FakeWorld machine_;
    std::optional<bool> translucent_;
    QStringList gestures_;
};

TEST_F(QuickFloatingWindowTest, HasTheSizeThatItIsGiven) {
    const auto window = make({220, 124});
    EXPECT_EQ(window->panelSize().width, 220);
    EXPECT_EQ(window->panelSize().height, 124);
    window->resize({110, 62});
    EXPECT_EQ(window->panelSize().width, 110);
}

TEST_F(QuickFloatingWindowTest, OneLargerThanTheScreenFillsItInItsProportions) {
    const auto window = make({220.0 * 50, 124.0 * 50});
    EXPECT_DOUBLE_EQ(window->panelSize().width, screen().width());
    EXPECT_NEAR(proportions(window->panelSize()), 220.0 / 124, 1e-9);
    window->resize({110, 62});
    window->resize({220 * 1e300, 124 * 1e300});
    EXPECT_DOUBLE_EQ(window->panelSize().width, screen().width());
    EXPECT_NEAR(proportions(window->panelSize()), 220.0 / 124, 1e-9);
}

TEST_F(QuickFloatingWindowTest, ASizeWithoutEndOrThatIsNoNumberIsTheScreens) {
    constexpr double endless = std::numeric_limits<double>::infinity();
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    for (const auto& size : {PanelSize{endless, endless}, PanelSize{none, none}}) {
        EXPECT_EQ(make(size)->panelSize().width, screen().width());
        EXPECT_EQ(make(size)->panelSize().height, screen().height());
    }
}

TEST_F(QuickFloatingWindowTest, GrowingOnTheScreenEndsAtItsEdgeToo) {
    const auto window = make({110, 62});
    window->orderFrontRegardless();
    window->resize({220.0 * 50, 124.0 * 50});
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->panelSize().width > screen().width() - 0.5; }));
    EXPECT_LE(window->panelSize().width, screen().width() + 0.01);
}

TEST_F(QuickFloatingWindowTest, EachLayerHasItsFlagsAndNoneTakesTheFocus) {
    const auto above = make({240, 160});
    EXPECT_EQ(above->type(), Qt::Tool);
    EXPECT_TRUE(above->flags().testFlag(Qt::WindowStaysOnTopHint));
    const auto below = make({240, 160}, WindowLayer::below);
    EXPECT_EQ(below->type(), Qt::Window);
    EXPECT_TRUE(below->flags().testFlag(Qt::WindowStaysOnBottomHint));
    EXPECT_FALSE(below->flags().testFlag(Qt::WindowStaysOnTopHint));
    for (const auto& window : {above.get(), below.get()}) {
        EXPECT_TRUE(window->flags().testFlag(Qt::FramelessWindowHint));
        EXPECT_TRUE(window->flags().testFlag(Qt::WindowDoesNotAcceptFocus));
    }
}

TEST_F(QuickFloatingWindowTest, ItIsPreparedBeforeEachShowingAndAfterwardsAsksForAllWorkspaces) {
    const auto window = make({220, 124});
    EXPECT_EQ(machine_.windowSystem.prepared(), 0);
    EXPECT_EQ(machine_.windowSystem.joinedWorkspaces(), 0);
    for (const int showings : {1, 2}) {
        window->orderFrontRegardless();
        EXPECT_EQ(machine_.windowSystem.prepared(), showings);
        EXPECT_EQ(machine_.windowSystem.joinedWorkspaces(), showings);
        window->orderOut();
    }
}

TEST_F(QuickFloatingWindowTest, FittedToTheScreensItHasTheSizeThatWasLastRequested) {
    const auto window = make({110, 62});
    window->setOrigin({100, 80});
    window->orderFrontRegardless();
    window->resize({220, 124});  // grows for a while
    EXPECT_LT(window->panelSize().width, 220);
    window->fitToScreens();
    EXPECT_EQ(window->panelSize(), (PanelSize{220, 124}));
    EXPECT_EQ(window->size(), QSize(220, 124));
    EXPECT_EQ(window->origin(), (platform::Point{100, 80}));
}

TEST_F(QuickFloatingWindowTest, ACompositorThatComesGivesAMarginAndATranslucentGroundAtTheSamePlace) {
    const auto note = make({240, 160}, WindowLayer::below);
    note->setOrigin({100, 80});
    EXPECT_EQ(translucent_, false);
    EXPECT_FALSE(note->mask().contains(QPoint(0, 0))) << "the corner is cut";
    EXPECT_TRUE(note->mask().contains(QPoint(120, 80)));
    machine_.windowSystem.setCompositing(true);
    EXPECT_EQ(translucent_, true);
    EXPECT_TRUE(note->mask().isEmpty());
    EXPECT_EQ(note->origin(), (platform::Point{100, 80}));
    EXPECT_EQ(note->size(), QSize(240 + 36, 160 + 36));
    EXPECT_EQ(machine_.windowSystem.inputRegion(), (platform::Rectangle{18, 18, 240, 160}));
    machine_.windowSystem.setCompositing(false);
    EXPECT_EQ(translucent_, false);
    EXPECT_EQ(note->origin(), (platform::Point{100, 80}));
    EXPECT_EQ(note->size(), QSize(240, 160));
}

TEST_F(QuickFloatingWindowTest, WhatAControlOfItsContentTakesIsNotTheWindows) {
    auto content = std::make_unique<QQuickItem>();
    Control control;
    control.setParentItem(content.get());
    control.setSize({50, 50});
    const auto note = make({240, 160}, WindowLayer::below, std::move(content));
    record(*note);
    note->orderFrontRegardless();
    QTest::mousePress(note.get(), Qt::LeftButton, {}, {20, 20});
    QTest::mouseMove(note.get(), {90, 90});
    QTest::mouseRelease(note.get(), Qt::LeftButton, {}, {90, 90});
    EXPECT_EQ(control.presses, 1);
    EXPECT_EQ(gestures_, QStringList());
    QTest::mouseClick(note.get(), Qt::LeftButton, {}, {120, 120});
    EXPECT_EQ(control.presses, 1);
    EXPECT_EQ(gestures_, (QStringList{"down", "up"}));
}

}  // namespace
}  // namespace tidewatch
