#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <utility>

#include "app/program_world.h"
#include "platform/qt/qt_main_loop.h"

namespace tidewatch {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;

enum class Loop { fake, toolkit };

constexpr auto the15th = sys_days(2026y / 1 / 15);
constexpr auto the16th = sys_days(2026y / 1 / 16);

/// The delegate with both of its timers running while the day changes.
class DayTurn : public ProgramWorld, public testing::WithParamInterface<Loop> {
protected:
    void startAt(Instant now, const std::string& todayJson) {
        machine_.clock.setNow(now);
        machine_.files.put("/home/user/.tidewatch/today.json", todayJson);
        launch();
    }

    void secondsPass(int count) {
        for (int i = 0; i < count; ++i) {
            if (GetParam() == Loop::fake) {
                runFor(1s);
            } else {
                machine_.clock.advance(1s);
                waitForRefresh();
            }
        }
    }

    /// What the disk holds once the program has ended.
    std::string todayAtTheEnd() {
        program_->delegate.applicationWillTerminate();
        return file("today.json");
    }

    [[nodiscard]] const platform::Platform& platform() override {
        return GetParam() == Loop::fake ? machine_.platform : toolkit_;
    }

private:
    /// Both timers have fired and what they posted has run.
    void waitForRefresh() {
        const int before = surfaces_.statusItem().titlesSet();
        while (surfaces_.statusItem().titlesSet() == before) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        QCoreApplication::sendPostedEvents();
    }

    platform::QtMainLoop toolkitLoop_;
    platform::Platform toolkit_ = machine_.on(toolkitLoop_);
};

TEST_P(DayTurn, AtMidnightWhileActiveEachDayKeepsItsOwnSeconds) {
    startAt(the16th - 3s, R"({"2026-01-15": 5000})");
    secondsPass(5);
    EXPECT_EQ(program_->services.engine.todaySeconds(), Seconds(3));
    EXPECT_EQ(program_->services.engine.liveSeconds(), Seconds(3));
    EXPECT_EQ(todayAtTheEnd(), "{\n  \"2026-01-15\" : 5002,\n  \"2026-01-16\" : 3\n}");
}

TEST_P(DayTurn, MidnightBetweenATickAndItsRefreshLeavesTheNewDayToTheNextTick) {
    startAt(the16th - 1500ms, R"({"2026-01-15": 5000, "2026-01-16": 40})");
    surfaces_.statusItem().onTitle([this, slow = true]() mutable {
        if (std::exchange(slow, false)) machine_.clock.advance(600ms);
    });
    secondsPass(3);
    EXPECT_EQ(todayAtTheEnd(), "{\n  \"2026-01-15\" : 5001,\n  \"2026-01-16\" : 42\n}");
}

TEST_P(DayTurn, AtMidnightWhileIdleTheNewDayStartsAtZero) {
    machine_.inputActivity.set(3600);
    startAt(the16th - 2s, R"({"2026-01-15": 5000})");
    secondsPass(4);
    EXPECT_EQ(program_->services.engine.todaySeconds(), Seconds(0));
    machine_.inputActivity.set(0);
    secondsPass(1);
    EXPECT_EQ(program_->services.engine.liveSeconds(), Seconds(1));
    EXPECT_EQ(todayAtTheEnd(), "{\n  \"2026-01-15\" : 5000,\n  \"2026-01-16\" : 1\n}");
}

TEST_P(DayTurn, AMachineThatSleptOverMidnightWakesOnTheNewDay) {
    startAt(the16th - 1h, R"({"2026-01-15": 5000})");
    secondsPass(1);
    machine_.clock.suspend(9h);
    secondsPass(2);
    EXPECT_EQ(todayAtTheEnd(), "{\n  \"2026-01-15\" : 5001,\n  \"2026-01-16\" : 2\n}");
}

TEST_P(DayTurn, ALaterStartOfTheDayChosenAtTwoInTheNightGoesOnWithYesterday) {
    startAt(the16th + 2h, R"({"2026-01-15": 25000, "2026-01-16": 110})");
    secondsPass(1);
    ASSERT_TRUE(choose("04:00"));
    secondsPass(2);
    EXPECT_EQ(todayAtTheEnd(), "{\n  \"2026-01-15\" : 25002,\n  \"2026-01-16\" : 111\n}");
}

TEST_P(DayTurn, MidnightChosenAtTwoInTheNightGoesOnWithTheNewDay) {
    machine_.preferences.setInteger("dayStartHour", 4);
    startAt(the16th + 2h, R"({"2026-01-15": 25000, "2026-01-16": 110})");
    secondsPass(1);
    ASSERT_TRUE(choose("Medianoche (00:00)"));
    secondsPass(2);
    EXPECT_EQ(todayAtTheEnd(), "{\n  \"2026-01-15\" : 25001,\n  \"2026-01-16\" : 112\n}");
}

TEST_P(DayTurn, AClockSetForwardByHoursGoesOnWithTheDayItShows) {
    startAt(the15th + 20h, R"({"2026-01-15": 5000})");
    secondsPass(1);
    machine_.clock.setNow(the16th + 3h);
    secondsPass(2);
    EXPECT_EQ(todayAtTheEnd(), "{\n  \"2026-01-15\" : 5001,\n  \"2026-01-16\" : 2\n}");
}

TEST_P(DayTurn, AClockSetBackByHoursGoesOnWithTheDayItShows) {
    startAt(the16th + 30min, R"({"2026-01-15": 5000, "2026-01-16": 40})");
    secondsPass(1);
    machine_.clock.setNow(the15th + 22h);
    secondsPass(2);
    EXPECT_EQ(todayAtTheEnd(), "{\n  \"2026-01-15\" : 5002,\n  \"2026-01-16\" : 41\n}");
}

TEST_P(DayTurn, AGoalReachedYesterdayIsNotAnnouncedAtMidnight) {
    machine_.preferences.setBoolean("notif-goal100-2026-01-15", true);
    startAt(the16th - 2s, R"({"2026-01-15": 40000})");
    secondsPass(3);
    EXPECT_TRUE(machine_.notifications.delivered().empty());
    EXPECT_FALSE(machine_.preferences.contains("notif-goal100-2026-01-16"));
    EXPECT_FALSE(machine_.preferences.contains("notif-goal80-2026-01-16"));
}

INSTANTIATE_TEST_SUITE_P(OnBothLoops, DayTurn, testing::Values(Loop::fake, Loop::toolkit),
                         [](const auto& test) { return test.param == Loop::fake ? "fakes" : "toolkit"; });

}  // namespace
}  // namespace tidewatch
