// The delegate forwards events asynchronously, never from within the signal.

#include <gtest/gtest.h>

#include "app/program_world.h"

namespace tidewatch {
namespace {

using namespace std::chrono_literals;

class WiringTest : public ProgramWorld {
protected:
    WiringTest() { launch(); }

    void pressAndReleaseOnThePanel() {
        surfaces_.panel().gestures().mouseDown({1, 1});
        surfaces_.panel().gestures().mouseUp({1, 1});
    }
    [[nodiscard]] PanelSize panelSize() { return surfaces_.panel().panelSize(); }
    [[nodiscard]] int titles() { return surfaces_.statusItem().titlesSet(); }

    const PanelSize ochre_{220 * 0.25, 124 * 0.25};
    const PanelSize hacker_{260 * 0.25, 110 * 0.25};
};

TEST_F(WiringTest, TheTitleIsDrawnOnceAtLaunchBeforeAnySecond) {
    EXPECT_EQ(titles(), 1);
    EXPECT_EQ(program_->services.engine.todaySeconds(), Seconds(0));
}

TEST_F(WiringTest, TheRightToNotifyIsAskedForOnceAtLaunch) {
    EXPECT_EQ(machine_.notifications.waitingRequests(), 1U);
    runFor(60s);
    EXPECT_EQ(machine_.notifications.waitingRequests(), 1U);
}

TEST_F(WiringTest, AChangeOfThemeIsHandedOn) {
    program_->theme.switchTo("hacker");
    EXPECT_EQ(panelSize(), ochre_);
    machine_.mainLoop.run();
    EXPECT_EQ(panelSize(), hacker_);
}

TEST_F(WiringTest, AChangeOfSizeIsHandedOn) {
    program_->services.counting.settings.setSizeScale(1);
    program_->services.broadcaster.post(SizeChanged());
    EXPECT_EQ(panelSize(), ochre_);
    machine_.mainLoop.run();
    EXPECT_EQ(panelSize(), (PanelSize{220, 124}));
}

TEST_F(WiringTest, ScreensThatChangeAreHandedOnToTheClock) {
    const platform::Screen left{{0, 0, 1920, 1080}, {0, 0, 1920, 1080}};
    machine_.screens.set({left, {{1920, 0, 1280, 1024}, {1920, 0, 1280, 1024}}});
    program_->services.counting.settings.setWindowOrigin(platform::Point{2000, 500});
    machine_.screens.set({left});
    EXPECT_EQ(surfaces_.panel().origin(), (platform::Point{1920 - 55 - 24, 24}));
}

TEST_F(WiringTest, ASizeThatIsStoredSilentlyWaitsForTheNextChange) {
    program_->services.counting.settings.setSizeScale(1);
    runFor(5s);
    EXPECT_EQ(panelSize(), ochre_);
    program_->theme.switchTo("minimal");
    machine_.mainLoop.run();
    EXPECT_EQ(panelSize(), (PanelSize{180, 70}));
}

TEST_F(WiringTest, AClickOnThePanelIsHandedOn) {
    pressAndReleaseOnThePanel();
    EXPECT_EQ(statistics_.showings(), 0);
    EXPECT_EQ(machine_.files.writeCount(), 0);
    machine_.mainLoop.run();
    EXPECT_EQ(statistics_.showings(), 1);
}

TEST_F(WiringTest, TwoClicksInOneTurnOpenAndCloseTheStatistics) {
    pressAndReleaseOnThePanel();
    pressAndReleaseOnThePanel();
    machine_.mainLoop.run();
    EXPECT_EQ(statistics_.showings(), 1);
    EXPECT_FALSE(statistics_.isVisible());
}

TEST_F(WiringTest, WhatIsHandedOnAndRunsAfterTheDelegateIsGoneTouchesNothing) {
    program_->theme.switchTo("hacker");
    pressAndReleaseOnThePanel();
    const auto log = surfaces_.log();
    program_.reset();
    machine_.mainLoop.run();
    EXPECT_EQ(surfaces_.log(), log);
    EXPECT_EQ(statistics_.showings(), 0);
    EXPECT_EQ(machine_.files.writeCount(), 0);
}

TEST_F(WiringTest, AfterTheEndNothingTicks) {
    program_->delegate.applicationWillTerminate();
    runFor(10s);
    EXPECT_EQ(program_->services.engine.todaySeconds(), Seconds(0));
}

}  // namespace
}  // namespace tidewatch
