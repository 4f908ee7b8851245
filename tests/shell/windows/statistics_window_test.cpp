#include "shell/windows/statistics_window.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QPointer>
#include <QTest>

#include "core/settings.h"
#include "shell/themes/theme_registry.h"
#include "tests/support/fake_world.h"
#include "ui/style/qt_color.h"

namespace tidewatch {
namespace {

class StatisticsWindowTest : public testing::Test {
protected:
    /// Null while there is none.
    static QQuickWindow* shown() {
        for (auto* window : QGuiApplication::topLevelWindows()) {
            if (window->title() == "FATHOM · Estadísticas" && window->isVisible()) {
                return qobject_cast<QQuickWindow*>(window);
            }
        }
        return nullptr;
    }

    std::unique_ptr<QQuickItem> makeView() {
        auto view = std::make_unique<QQuickItem>();
        view_ = view.get();
        ++viewsMade_;
        return view;
    }

    test::FakeWorld machine_;
    Settings settings_{machine_.preferences};
    Broadcaster broadcaster_;
    ThemeRegistry themes_;
    ThemeController theme_{themes_, settings_, broadcaster_};
    QPointer<QQuickItem> view_;
    int viewsMade_ = 0;
    int disappeared_ = 0;
    int destroyed_ = 0;
    int announced_ = 0;
    Connection announcements_ =
        broadcaster_.observe<DashboardWillShow>([this](const auto&) { ++announced_; });
    QuickStatisticsWindow window_{{.windowSystem = machine_.windowSystem,
                                   .screens = machine_.screens,
                                   .memory = machine_.memory,
                                   .theme = theme_,
                                   .broadcaster = broadcaster_},
                                  {.makeView = [this] { return makeView(); },
                                   .disappeared = [this] { ++disappeared_; },
                                   .viewDestroyed = [this] { ++destroyed_; }}};
};

TEST_F(StatisticsWindowTest, DoesNotExistBeforeItsFirstShowing) {
    EXPECT_FALSE(window_.isVisible());
    window_.close();
    theme_.switchTo("hacker");
    EXPECT_EQ(viewsMade_, 0);
    EXPECT_EQ(disappeared_, 0);
}

TEST_F(StatisticsWindowTest, IsAnOrdinaryWindowInTheMiddleOfTheMainScreen) {
    window_.showWindow();
    ASSERT_NE(shown(), nullptr);
    EXPECT_EQ(shown()->geometry(), QRect(280, 55, 1360, 1000));
    EXPECT_EQ(shown()->minimumSize(), QSize(820, 560));
    EXPECT_EQ(shown()->type(), Qt::Window);
    EXPECT_FALSE(shown()->flags().testFlag(Qt::FramelessWindowHint));
}

TEST_F(StatisticsWindowTest, TheDesktopsFrameStaysWithinItsPlace) {
    machine_.windowSystem.setFrameMargins({.left = 1, .right = 1, .top = 22, .bottom = 5});
    window_.showWindow();
    EXPECT_EQ(shown()->geometry(), QRect(281, 77, 1358, 973));
}

TEST_F(StatisticsWindowTest, AFrameThatIsReportedAfterTheShowingCorrectsItsSizeOnce) {
    window_.showWindow();
    machine_.windowSystem.reportFrame({.left = 1, .right = 1, .top = 22, .bottom = 5});
    EXPECT_EQ(shown()->geometry(), QRect(281, 77, 1358, 973));
    shown()->setGeometry(3, 4, 850, 600);
    machine_.windowSystem.reportFrame({.left = 1, .right = 1, .top = 44, .bottom = 5});
    EXPECT_EQ(shown()->geometry(), QRect(3, 4, 850, 600));
    window_.showWindow();
    EXPECT_EQ(shown()->geometry(), QRect(281, 99, 1358, 951));
}

TEST_F(StatisticsWindowTest, AFrameThatIsAsExpectedLeavesItToTheUser) {
    window_.showWindow();
    shown()->setGeometry(3, 4, 850, 600);
    machine_.windowSystem.reportFrame({});
    EXPECT_EQ(shown()->geometry(), QRect(3, 4, 850, 600));
}

TEST_F(StatisticsWindowTest, OnlyOnceItIsSeenItMayBeMaximised) {
    window_.showWindow();
    EXPECT_FALSE(machine_.windowSystem.maximizable());
    EXPECT_TRUE(QTest::qWaitForWindowExposed(shown(), 60'000));
    EXPECT_TRUE(machine_.windowSystem.maximizable());
}

TEST_F(StatisticsWindowTest, TheViewFillsItAndHasTheFocus) {
    window_.showWindow();
    QCoreApplication::processEvents();
    EXPECT_EQ(view_->size(), QSizeF(1360, 1000));
    EXPECT_TRUE(view_->hasFocus());
    shown()->resize(900, 700);
    QCoreApplication::processEvents();
    EXPECT_EQ(view_->size(), QSizeF(900, 700));
}

TEST_F(StatisticsWindowTest, EachShowingCentresActivatesAndAnnouncesIt) {
    window_.showWindow();
    shown()->setGeometry(3, 4, 850, 600);
    window_.showWindow();
    EXPECT_EQ(shown()->geometry(), QRect(280, 55, 1360, 1000));
    EXPECT_EQ(announced_, 2);
    EXPECT_EQ(machine_.windowSystem.activated(), 2);
    EXPECT_EQ(viewsMade_, 1);
}

TEST_F(StatisticsWindowTest, OneThatFillsTheScreenComesBackToItsOwnSize) {
    window_.showWindow();
    for (const auto state : {Qt::WindowMaximized, Qt::WindowFullScreen}) {
        shown()->setWindowStates(state);
        window_.showWindow();
        EXPECT_EQ(shown()->windowStates(), Qt::WindowNoState);
        EXPECT_EQ(shown()->geometry(), QRect(280, 55, 1360, 1000));
    }
}

TEST_F(StatisticsWindowTest, WithoutAViewThereIsNoWindowAndNothingElseHappens) {
    QuickStatisticsWindow broken({.windowSystem = machine_.windowSystem,
                                  .screens = machine_.screens,
                                  .memory = machine_.memory,
                                  .theme = theme_,
                                  .broadcaster = broadcaster_},
                                 {.makeView = [] { return std::unique_ptr<QQuickItem>(); },
                                  .disappeared = [this] { ++disappeared_; },
                                  .viewDestroyed = [this] { ++destroyed_; }});
    broken.showWindow();
    EXPECT_FALSE(broken.isVisible());
    EXPECT_EQ(shown(), nullptr);
    EXPECT_EQ(announced_, 0);
    theme_.switchTo("hacker");
    broken.toggleWindow();
    broken.close();
    EXPECT_EQ(disappeared_, 0);
}

TEST_F(StatisticsWindowTest, IsOnTheScreenWhenItIsAnnounced) {
    bool visible = false;
    const auto watching =
        broadcaster_.observe<DashboardWillShow>([&](const auto&) { visible = window_.isVisible(); });
    window_.showWindow();
    EXPECT_TRUE(visible);
}

TEST_F(StatisticsWindowTest, ToggleShowsAndCentresAWindowThatWasClosedAndClosesAVisibleOne) {
    window_.toggleWindow();
    EXPECT_TRUE(window_.isVisible());
    shown()->setPosition(0, 0);
    window_.toggleWindow();
    EXPECT_FALSE(window_.isVisible());
    EXPECT_EQ(shown(), nullptr);
    window_.toggleWindow();
    EXPECT_EQ(shown()->position(), QPoint(280, 55));
}

TEST_F(StatisticsWindowTest, ClosingDestroysTheViewAndGivesItsMemoryBack) {
    window_.showWindow();
    window_.close();
    EXPECT_EQ(disappeared_, 1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return view_.isNull(); }, 60'000));
    EXPECT_EQ(destroyed_, 1);
    EXPECT_EQ(machine_.memory.releaseCount(), 1);
}

TEST_F(StatisticsWindowTest, AViewThatClosesItsWindowOutlivesTheCall) {
    window_.showWindow();
    shown()->close();
    EXPECT_FALSE(window_.isVisible());
    EXPECT_EQ(disappeared_, 1);
    EXPECT_FALSE(view_.isNull());
    EXPECT_TRUE(QTest::qWaitFor([this] { return view_.isNull(); }, 60'000));
}

TEST_F(StatisticsWindowTest, ShownAgainAtOnceItHasANewView) {
    window_.showWindow();
    const auto first = view_;
    window_.close();
    window_.showWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return first.isNull(); }, 60'000));
    EXPECT_TRUE(window_.isVisible());
    EXPECT_FALSE(view_.isNull());
    EXPECT_EQ(viewsMade_, 2);
}

TEST_F(StatisticsWindowTest, AppliesTheThemeBeforeItsFirstFrameAndFollowsIt) {
    theme_.switchTo("editorial");
    window_.showWindow();
    const auto& light = theme_.active().dashboard;
    EXPECT_EQ(shown()->color(), toQColor(light.nsBackground));
    EXPECT_EQ(machine_.windowSystem.frameVariant(), platform::FrameVariant::light);
    theme_.switchTo("hacker");
    EXPECT_NE(theme_.active().dashboard.nsBackground, light.nsBackground);
    EXPECT_EQ(shown()->color(), toQColor(theme_.active().dashboard.nsBackground));
    EXPECT_EQ(machine_.windowSystem.frameVariant(), platform::FrameVariant::dark);
}

TEST_F(StatisticsWindowTest, AMinimisedWindowIsNotVisibleAndComesUpAgain) {
    window_.showWindow();
    shown()->setWindowStates(Qt::WindowMinimized);
    EXPECT_FALSE(window_.isVisible());
    window_.toggleWindow();
    EXPECT_TRUE(window_.isVisible());
}

}  // namespace
}  // namespace tidewatch
