#include <limits>

#include "tests/system/system_monitor_fixture.h"

namespace tidewatch {
namespace {

TEST_F(SystemMonitorTest, TickCountersWrapAroundAt32Bits) {
    constexpr auto last = std::numeric_limits<std::uint32_t>::max();
    counters.cpu = {.user = last, .system = last - 9, .idle = last - 4, .nice = 0};
    monitor->start();
    counters.cpu = {.user = 9, .system = 0, .idle = 75, .nice = 0};
    sample();
    EXPECT_DOUBLE_EQ(snap().cpuUser, 0.1);
    EXPECT_DOUBLE_EQ(snap().cpuSystem, 0.1);
}

TEST_F(SystemMonitorTest, TicksThatStandStillKeepTheLoad) {
    counters.cpu = platform::CpuTicks();
    monitor->start();
    counters.cpu = {.user = 1, .idle = 1};
    sample(2);
    EXPECT_DOUBLE_EQ(snap().cpuTotal, 0.5);
}

TEST_F(SystemMonitorTest, UnreadableTicksKeepTheLoadAndTheLastCounters) {
    counters.cpu = platform::CpuTicks();
    monitor->start();
    counters.cpu = {.user = 1, .idle = 1};
    sample();
    counters.cpu.reset();
    sample();
    EXPECT_DOUBLE_EQ(snap().cpuTotal, 0.5);
    counters.cpu = {.user = 1, .system = 1, .idle = 4};
    sample();
    EXPECT_DOUBLE_EQ(snap().cpuTotal, 0.25);
}

TEST_F(SystemMonitorTest, UsedMemoryIsActiveWiredAndCompressed) {
    counters.memoryReading = {
        .total = 100, .usage = {{.free = 30, .active = 20, .wired = 10, .compressed = 5}}, .swapUsed = 7};
    monitor->start();
    EXPECT_EQ(snap().ramTotal, 100);
    EXPECT_EQ(snap().ramUsed, 35);
    EXPECT_EQ(snap().ramFree, 30);
    EXPECT_EQ(snap().ramActive, 20);
    EXPECT_EQ(snap().ramWired, 10);
    EXPECT_EQ(snap().ramCompressed, 5);
    EXPECT_EQ(snap().swapUsed, 7);
}

TEST_F(SystemMonitorTest, UsedMemoryNeverExceedsTheTotal) {
    counters.memoryReading = {.total = 100, .usage = {{.active = 80, .wired = 30, .compressed = 5}}};
    monitor->start();
    EXPECT_EQ(snap().ramUsed, 100);
    EXPECT_DOUBLE_EQ(snap().ramUsedFraction(), 1);
}

TEST_F(SystemMonitorTest, UnreadableMemoryKeepsItsFiguresAndTheSwapButNotTheTotal) {
    counters.memoryReading = {.total = 100, .usage = {{.free = 30, .active = 20}}, .swapUsed = 7};
    monitor->start();
    counters.memoryReading = {.total = 200, .swapUsed = 9};
    sample();
    EXPECT_EQ(snap().ramTotal, 200);
    EXPECT_EQ(snap().ramUsed, 20);
    EXPECT_EQ(snap().ramFree, 30);
    EXPECT_EQ(snap().swapUsed, 7);
}

TEST_F(SystemMonitorTest, UnreadableSwapKeepsItsFigure) {
    counters.memoryReading = {.total = 100, .usage = platform::MemoryUsage(), .swapUsed = 7};
    monitor->start();
    counters.memoryReading.swapUsed.reset();
    sample();
    EXPECT_EQ(snap().swapUsed, 7);
}

TEST_F(SystemMonitorTest, TheGraphicsLoadIsTheGreatestFigure) {
    counters.gpus = {0.25, 40, 3};
    monitor->start();
    EXPECT_DOUBLE_EQ(snap().gpuUsage.value(), 0.4);
}

TEST_F(SystemMonitorTest, AGraphicsFigureUpToOneIsAFraction) {
    counters.gpus = {1};
    monitor->start();
    EXPECT_EQ(snap().gpuUsage, 1.0);
    counters.gpus = {0};
    sample();
    EXPECT_EQ(snap().gpuUsage, 0.0);
}

TEST_F(SystemMonitorTest, AGraphicsFigureNeverExceedsOne) {
    counters.gpus = {250};
    monitor->start();
    EXPECT_EQ(snap().gpuUsage, 1.0);
}

TEST_F(SystemMonitorTest, WithoutAGraphicsFigureThereIsNone) {
    counters.gpus = {40};
    monitor->start();
    counters.gpus.clear();
    sample();
    EXPECT_FALSE(snap().gpuUsage);
}

}  // namespace
}  // namespace tidewatch
