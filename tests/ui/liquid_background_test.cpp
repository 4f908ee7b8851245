#include "ui/backgrounds/liquid_background.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QQuickWindow>
#include <chrono>

#include "platform/fake/fake_clock.h"

namespace tidewatch {
namespace {

using namespace std::chrono;

void processEvents() {
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
    }
}

class LiquidBackgroundTest : public testing::Test {
protected:
    LiquidBackgroundTest() : liquid_(window_.contentItem()) {
        liquid_.setSize({115, 66});
        liquid_.setTime(&time_);
        window_.resize(115, 66);
    }

    void showWindow() {
        window_.show();
        processEvents();
    }

    platform::FakeClock clock_{sys_days(January / 15 / 2026)};
    WallClock time_{clock_};
    QQuickWindow window_;
    LiquidBackground liquid_;
};

TEST(WallClock, CountsSecondsWithTheirFractionFromTheBeginningOf2001) {
    platform::FakeClock clock(sys_days(January / 1 / 2001));
    const WallClock time(clock);
    EXPECT_EQ(time.secondsSinceReferenceDate(), 0);
    clock.advance(milliseconds(90'250));
    EXPECT_DOUBLE_EQ(time.secondsSinceReferenceDate(), 90.25);
}

TEST_F(LiquidBackgroundTest, MovesOnlyWhileItsWindowIsOnTheScreen) {
    EXPECT_FALSE(liquid_.isMoving());
    showWindow();
    EXPECT_TRUE(liquid_.isMoving());
    window_.hide();
    processEvents();
    EXPECT_FALSE(liquid_.isMoving());
    showWindow();
    EXPECT_TRUE(liquid_.isMoving());
}

TEST_F(LiquidBackgroundTest, StandsStillWhenToldTo) {
    showWindow();
    liquid_.setRunning(false);
    EXPECT_FALSE(liquid_.isMoving());
    liquid_.setRunning(true);
    EXPECT_TRUE(liquid_.isMoving());
}

TEST_F(LiquidBackgroundTest, StandsStillWhileTheItemIsNotVisible) {
    showWindow();
    liquid_.setVisible(false);
    EXPECT_FALSE(liquid_.isMoving());
    liquid_.setVisible(true);
    EXPECT_TRUE(liquid_.isMoving());
}

TEST_F(LiquidBackgroundTest, ShowsAnotherPictureAtAnotherTime) {
    liquid_.setRunning(false);
    showWindow();
    const auto before = window_.grabWindow();
    clock_.advance(seconds(3));
    liquid_.update();
    EXPECT_NE(window_.grabWindow(), before);
}

TEST_F(LiquidBackgroundTest, AnIntervalOfNoFramesIsRefused) {
    liquid_.setEveryFrames(2);
    liquid_.setEveryFrames(0);
    EXPECT_EQ(liquid_.everyFrames(), 2);
}

}  // namespace
}  // namespace tidewatch
