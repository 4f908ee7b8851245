#include "shell/windows/quick_panel_window.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <limits>

#include "tests/support/fake_world.h"

namespace tidewatch {
namespace {

class QuickPanelWindowTest : public testing::Test {
protected:
    std::unique_ptr<QuickPanelWindow> make(PanelSize size) {
        return std::make_unique<QuickPanelWindow>(machine_.windowSystem,
                                                  QuickPanelWindow::Content{
                                                      .item = std::make_unique<QQuickItem>(),
                                                      .cornerRadius = [](PanelSize) { return 8.0; },
                                                      .setTranslucent = [](bool) {},
                                                      .setOnScreen = [](bool) {},
                                                  },
                                                  size);
    }

    static QSize screen() { return QGuiApplication::primaryScreen()->size(); }

    static double proportions(PanelSize size) { return size.width / size.height; }

    test::FakeWorld machine_;
};

TEST_F(QuickPanelWindowTest, HasTheSizeThatItIsGiven) {
    const auto window = make({220, 124});
    EXPECT_EQ(window->panelSize().width, 220);
    EXPECT_EQ(window->panelSize().height, 124);
    window->resize({110, 62});
    EXPECT_EQ(window->panelSize().width, 110);
}

TEST_F(QuickPanelWindowTest, OneLargerThanTheScreenFillsItInItsProportions) {
    const auto window = make({220.0 * 50, 124.0 * 50});
    EXPECT_DOUBLE_EQ(window->panelSize().width, screen().width());
    EXPECT_NEAR(proportions(window->panelSize()), 220.0 / 124, 1e-9);
    window->resize({110, 62});
    window->resize({220 * 1e300, 124 * 1e300});
    EXPECT_DOUBLE_EQ(window->panelSize().width, screen().width());
    EXPECT_NEAR(proportions(window->panelSize()), 220.0 / 124, 1e-9);
}

TEST_F(QuickPanelWindowTest, ASizeWithoutEndOrThatIsNoNumberIsTheScreens) {
    constexpr double endless = std::numeric_limits<double>::infinity();
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    for (const auto& size : {PanelSize{endless, endless}, PanelSize{none, none}}) {
        EXPECT_EQ(make(size)->panelSize().width, screen().width());
        EXPECT_EQ(make(size)->panelSize().height, screen().height());
    }
}

TEST_F(QuickPanelWindowTest, GrowingOnTheScreenEndsAtItsEdgeToo) {
    const auto window = make({110, 62});
    window->orderFrontRegardless();
    window->resize({220.0 * 50, 124.0 * 50});
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->panelSize().width > screen().width() - 0.5; }));
    EXPECT_LE(window->panelSize().width, screen().width() + 0.01);
}

}  // namespace
}  // namespace tidewatch
