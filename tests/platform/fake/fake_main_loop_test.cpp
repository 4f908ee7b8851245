#include "platform/fake/fake_main_loop.h"

#include <gtest/gtest.h>

#include <string>

namespace tidewatch::platform {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;

struct FakeMainLoopTest : testing::Test {
    FakeClock clock{Instant(sys_days(2026y / 1 / 15))};
    FakeMainLoop loop{clock};
    std::string calls;
};

TEST_F(FakeMainLoopTest, JobsRunInOrderAndNeverInsideThePoster) {
    loop.post([this] {
        loop.post([this] { calls += "c"; });
        calls += "a";
    });
    loop.post([this] { calls += "b"; });
    EXPECT_EQ(calls, "");
    loop.run();
    EXPECT_EQ(calls, "abc");
}

TEST_F(FakeMainLoopTest, ATimerFiresFirstAfterOneIntervalAndThenAtEach) {
    int fired = 0;
    const auto timer = loop.repeat(1s, TimerMode::common, [&] { ++fired; });
    loop.runFor(999ms);
    EXPECT_EQ(fired, 0);
    loop.runFor(1ms);
    EXPECT_EQ(fired, 1);
    loop.runFor(10s);
    EXPECT_EQ(fired, 11);
}

TEST_F(FakeMainLoopTest, AnIntervalMayBeAFractionOfAMillisecond) {
    int fired = 0;
    const auto timer = loop.repeat(nanoseconds(1s) / 60, TimerMode::common, [&] { ++fired; });
    loop.runFor(10s);
    EXPECT_EQ(fired, 600);
}

TEST_F(FakeMainLoopTest, TimersDueTogetherFireInTheOrderOfTheirMakingThenTheirJobs) {
    const auto first = loop.repeat(1s, TimerMode::common, [this] {
        calls += "1";
        loop.post([this] { calls += "a"; });
    });
    const auto second = loop.repeat(1s, TimerMode::common, [this] { calls += "2"; });
    loop.runFor(1s);
    EXPECT_EQ(calls, "12a");
}

TEST_F(FakeMainLoopTest, MissedFiringsAreNotCaughtUpAndDoNotShiftLaterOnes) {
    int fired = 0;
    const auto timer = loop.repeat(1s, TimerMode::common, [&] { ++fired; });
    clock.advance(10500ms);
    loop.run();
    EXPECT_EQ(fired, 1);
    loop.runFor(500ms);
    EXPECT_EQ(fired, 2);
}

TEST_F(FakeMainLoopTest, ATimerDoesNotFireForTimeSleptAway) {
    int fired = 0;
    const auto timer = loop.repeat(1s, TimerMode::common, [&] { ++fired; });
    clock.suspend(8h);
    loop.run();
    EXPECT_EQ(fired, 0);
}

TEST_F(FakeMainLoopTest, AnOpenMenuHoldsBackTimersOfTheDefaultMode) {
    const auto common = loop.repeat(1s, TimerMode::common, [this] { calls += "c"; });
    const auto plain = loop.repeat(1s, TimerMode::defaultOnly, [this] { calls += "d"; });
    loop.setMenu(FakeMainLoop::Menu::open);
    loop.runFor(2s);
    EXPECT_EQ(calls, "cc");
    loop.setMenu(FakeMainLoop::Menu::closed);
    loop.runFor(1s);
    EXPECT_EQ(calls, "cccd");
}

TEST_F(FakeMainLoopTest, ADestroyedTimerStops) {
    std::unique_ptr<RepeatingTimer> timer;
    timer = loop.repeat(1s, TimerMode::common, [&] {
        calls += "x";
        timer.reset();
    });
    loop.runFor(3s);
    EXPECT_EQ(calls, "x");
    EXPECT_EQ(loop.timerCount(), 0u);
}

}  // namespace
}  // namespace tidewatch::platform
