#include "tests/system/system_monitor_fixture.h"

namespace tidewatch {
namespace {

using std::chrono::seconds;
using testing::SizeIs;

TEST_F(SystemMonitorTest, NothingIsReadBeforeTheStart) {
    sample(5);
    EXPECT_EQ(samples, 0);
    EXPECT_EQ(volumes.refreshes, 0);
    EXPECT_EQ(counters.processReadings, 0);
}

TEST_F(SystemMonitorTest, TheFirstSampleHasNoLoadAndNoRatesButTheProcesses) {
    counters.cpu = {.user = 500, .system = 200, .idle = 100, .nice = 5};
    counters.traffic = {.received = 1000, .sent = 500};
    counters.processes = {{"compiler", 150, gibibyte}};
    monitor->start();
    EXPECT_EQ(snap().cpuTotal, 0);
    EXPECT_EQ(snap().cpuUser, 0);
    EXPECT_EQ(snap().cpuSystem, 0);
    EXPECT_EQ(snap().netDownBps, 0);
    EXPECT_EQ(snap().netUpBps, 0);
    EXPECT_THAT(snap().topCpu, SizeIs(1));
    EXPECT_THAT(snap().topRam, SizeIs(1));
    EXPECT_EQ(samples, 1);
}

TEST_F(SystemMonitorTest, TheSecondSampleHasLoadAndRates) {
    counters.cpu = {.user = 100, .system = 100, .idle = 100, .nice = 100};
    counters.traffic = {.received = 1000, .sent = 500};
    monitor->start();
    counters.cpu = {.user = 130, .system = 120, .idle = 140, .nice = 110};
    counters.traffic = {.received = 3000, .sent = 700};
    sample();
    EXPECT_DOUBLE_EQ(snap().cpuUser, 0.4);
    EXPECT_DOUBLE_EQ(snap().cpuSystem, 0.2);
    EXPECT_DOUBLE_EQ(snap().cpuTotal, 0.6);
    EXPECT_DOUBLE_EQ(snap().netDownBps, 1000);
    EXPECT_DOUBLE_EQ(snap().netUpBps, 100);
}

TEST_F(SystemMonitorTest, ASecondStartIsIgnored) {
    monitor->start();
    monitor->start();
    EXPECT_EQ(samples, 1);
    sample();
    EXPECT_EQ(samples, 2);
}

TEST_F(SystemMonitorTest, SamplesAtAnotherIntervalIfAsked) {
    monitor->start(seconds(5));
    mainLoop.runFor(seconds(20));
    EXPECT_EQ(samples, 5);
}

TEST_F(SystemMonitorTest, GoesOnWhileAMenuIsOpen) {
    monitor->start();
    mainLoop.setMenu(platform::FakeMainLoop::Menu::open);
    sample();
    EXPECT_EQ(samples, 2);
}

TEST_F(SystemMonitorTest, NothingIsSampledAfterTheStop) {
    monitor->start();
    monitor->stop();
    sample(5);
    EXPECT_EQ(samples, 1);
    EXPECT_EQ(mainLoop.timerCount(), 0);
}

TEST_F(SystemMonitorTest, TheFirstSampleAfterARestartMeasuresAcrossThePause) {
    counters.cpu = platform::CpuTicks();
    counters.traffic = {.received = 1000, .sent = 0};
    monitor->start();
    monitor->stop();
    clock.advance(seconds(10));
    counters.cpu = {.user = 3, .idle = 1};
    counters.traffic = {.received = 2000, .sent = 0};
    monitor->start();
    EXPECT_DOUBLE_EQ(snap().cpuTotal, 0.75);
    EXPECT_DOUBLE_EQ(snap().netDownBps, 100);
}

TEST_F(SystemMonitorTest, TheCountOfTicksGoesOnAcrossAPause) {
    monitor->start();
    sample(2);
    monitor->stop();
    monitor->start();
    EXPECT_EQ(counters.processReadings, 2);
    sample();
    EXPECT_EQ(counters.processReadings, 3);
}

TEST_F(SystemMonitorTest, ADestroyedMonitorSamplesNoMore) {
    monitor->start();
    monitor.reset();
    sample(3);
    volumes.finish({{volume("data", 10)}});
    EXPECT_EQ(samples, 1);
}

}  // namespace
}  // namespace tidewatch
