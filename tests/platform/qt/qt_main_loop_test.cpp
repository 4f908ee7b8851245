#include "platform/qt/qt_main_loop.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QMenu>
#include <QThread>
#include <functional>
#include <optional>
#include <string>
#include <thread>

namespace tidewatch::platform {
namespace {

using namespace std::chrono_literals;

class QtMainLoopTest : public testing::Test {
protected:
    void runFor(int milliseconds) {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < milliseconds) QApplication::processEvents(QEventLoop::AllEvents, 5);
    }

    /// Until `condition` holds, for a minute at most.
    static void runUntil(const std::function<bool()>& condition) {
        QElapsedTimer timer;
        timer.start();
        while (!condition() && timer.elapsed() < 60'000)
            QApplication::processEvents(QEventLoop::AllEvents, 5);
    }

    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    QApplication application_{argc_, argv_};
    QtMainLoop loop_;
};

TEST_F(QtMainLoopTest, JobsRunLaterInTheOrderInWhichTheyWerePosted) {
    std::string order;
    loop_.post([&] { order += "a"; });
    loop_.post([&] { order += "b"; });
    EXPECT_EQ(order, "");
    runUntil([&] { return order.size() == 2; });
    EXPECT_EQ(order, "ab");
}

TEST_F(QtMainLoopTest, AJobFromAnotherThreadRunsOnTheMainThread) {
    const auto* main = QThread::currentThread();
    const QThread* ran = nullptr;
    std::thread([&] { loop_.post([&] { ran = QThread::currentThread(); }); }).join();
    runUntil([&] { return ran != nullptr; });
    EXPECT_EQ(ran, main);
}

TEST_F(QtMainLoopTest, FractionsOfAMillisecondDoNotAddUp) {
    // Rounded, these would be half an interval off after the twentieth. A slow machine delays single firings.
    constexpr std::int64_t interval = 20'500'000;
    constexpr std::int64_t tolerance = 4'000'000;
    int fired = 0;
    int onTime = 0;
    QElapsedTimer timer;
    timer.start();
    const auto ticking = loop_.repeat(std::chrono::nanoseconds(interval), TimerMode::common, [&] {
        ++fired;
        if (fired > 20 && timer.nsecsElapsed() % interval < tolerance) ++onTime;
    });
    while (fired < 30) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_GT(onTime, 0);
}

TEST_F(QtMainLoopTest, ADestroyedTimerDoesNotFire) {
    int fired = 0;
    auto timer = loop_.repeat(10ms, TimerMode::common, [&] { ++fired; });
    runUntil([&] { return fired > 0; });
    EXPECT_GT(fired, 0);
    timer.reset();
    const int before = fired;
    runFor(40);
    EXPECT_EQ(fired, before);
}

TEST_F(QtMainLoopTest, WhileAMenuIsOpenOnlyCommonTimersFire) {
    int common = 0;
    int refresh = 0;
    const auto first = loop_.repeat(10ms, TimerMode::common, [&] { ++common; });
    const auto second = loop_.repeat(10ms, TimerMode::defaultOnly, [&] { ++refresh; });
    QMenu menu;
    menu.addAction("row");
    menu.popup({0, 0});
    runUntil([&] { return common > 3; });
    EXPECT_GT(common, 3);
    EXPECT_EQ(refresh, 0);
    menu.close();
    runUntil([&] { return refresh > 0; });
    EXPECT_GT(refresh, 0);
}

TEST_F(QtMainLoopTest, TimersMadeOneAfterTheOtherFireInTheSameTurnAndInThatOrder) {
    std::string order;
    const auto noting = [&](char name) { return [&order, name] { order += name; }; };
    const auto first = loop_.repeat(200ms, TimerMode::common, noting('a'));
    QThread::msleep(10);
    const auto second = loop_.repeat(200ms, TimerMode::defaultOnly, noting('b'));
    const auto third = loop_.repeat(200ms, TimerMode::common, noting('c'));
    while (order.size() < 6) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_EQ(order, "abcabc");
}

TEST_F(QtMainLoopTest, ATimerMadeInTheMiddleOfAnothersIntervalWaitsForAWholeOneOfItsOwn) {
    QElapsedTimer sinceMade;
    std::optional<qint64> fired;
    const auto first = loop_.repeat(400ms, TimerMode::common, [] {});
    QThread::msleep(200);
    sinceMade.start();
    const auto second = loop_.repeat(400ms, TimerMode::common, [&] {
        if (!fired) fired = sinceMade.elapsed();
    });
    while (!fired) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_GE(*fired, 399);
}

TEST_F(QtMainLoopTest, ATimerMayDestroyItselfAndThoseBesideIt) {
    std::string order;
    std::unique_ptr<RepeatingTimer> first;
    std::unique_ptr<RepeatingTimer> second;
    first = loop_.repeat(10ms, TimerMode::common, [&] {
        order += 'a';
        second.reset();
        first.reset();
    });
    second = loop_.repeat(10ms, TimerMode::common, [&] { order += 'b'; });
    runFor(100);
    EXPECT_EQ(order, "a");
}

TEST_F(QtMainLoopTest, ABlockedThreadsFiringsAreDropped) {
    int fired = 0;
    const auto timer = loop_.repeat(20ms, TimerMode::common, [&] { ++fired; });
    QThread::msleep(200);
    runFor(1);
    EXPECT_LE(fired, 2);
}

TEST_F(QtMainLoopTest, ABlockedThreadDoesNotShiftTheFiringsAfterIt) {
    // A slow machine delays single firings.
    constexpr std::int64_t interval = 40;
    int fired = 0;
    int onTime = 0;
    QElapsedTimer timer;
    timer.start();
    const auto ticking = loop_.repeat(std::chrono::milliseconds(interval), TimerMode::common, [&] {
        ++fired;
        if (fired > 1 && timer.elapsed() % interval < interval / 4) ++onTime;
    });
    QThread::msleep(interval * 5 / 2);
    while (fired < 10) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_GT(onTime, 0);
}

}  // namespace
}  // namespace tidewatch::platform
