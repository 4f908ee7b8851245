#include "system/system_monitor.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>
#include <memory>
#include <set>

#include "platform/fake/fake_clock.h"
#include "platform/fake/fake_disk_volumes.h"
#include "platform/fake/fake_machine_counters.h"
#include "platform/fake/fake_main_loop.h"
#include "platform/fake/fake_randomness.h"

namespace tidewatch {
namespace {

using platform::MountedVolume;
using platform::ProcessLoad;
using std::chrono::seconds;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::uint64_t gibibyte = 1 << 30;

struct SystemMonitorTest : testing::Test {
    platform::FakeClock clock{Instant(seconds(1'800'000'000))};
    platform::FakeMainLoop mainLoop{clock};
    platform::FakeMachineCounters counters;
    platform::FakeDiskVolumes volumes;
    platform::FakeRandomness randomness;
    std::unique_ptr<SystemMonitor> monitor = std::make_unique<SystemMonitor>(SystemMonitor::Dependencies{
        .clock = clock,
        .mainLoop = mainLoop,
        .counters = counters,
        .volumes = volumes,
        .randomness = randomness,
    });
    int samples = 0;
    Connection connection = monitor->changed.connect([this] { ++samples; });

    const SystemSnapshot& snap() { return monitor->snap(); }

    // The next samples, at the default interval.
    void sample(int times = 1) { mainLoop.runFor(seconds(2) * times); }

    std::vector<std::string> diskNames() {
        std::vector<std::string> names;
        for (const auto& disk : snap().disks) names.push_back(disk.name);
        return names;
    }
};

MountedVolume volume(const std::string& name, std::int64_t total) {
    return {.path = "/media/" + name, .name = name, .totalBytes = total, .freeBytes = 1, .isInternal = true};
}

std::vector<std::string> names(const std::vector<SysProc>& rows) {
    std::vector<std::string> names;
    for (const auto& row : rows) names.push_back(row.name);
    return names;
}

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

TEST_F(SystemMonitorTest, WithAllInterfaceCountersAtZeroTheRatesStay) {
    counters.traffic = {.received = 1000, .sent = 500};
    monitor->start();
    counters.traffic = {.received = 3000, .sent = 700};
    sample();
    counters.traffic = platform::InterfaceBytes();
    sample();  // compared with the 3000 before, which wraps around
    const auto down = snap().netDownBps;
    const auto up = snap().netUpBps;
    sample();
    EXPECT_EQ(snap().netDownBps, down);
    EXPECT_EQ(snap().netUpBps, up);
    counters.traffic = {.received = 10};
    sample();
    EXPECT_EQ(snap().netDownBps, down);
    counters.traffic = {.received = 30};
    sample();
    EXPECT_DOUBLE_EQ(snap().netDownBps, 10);
    EXPECT_EQ(snap().netUpBps, 0);
}

TEST_F(SystemMonitorTest, AnInterfaceThatGoesAwayShowsOneEnormousSample) {
    counters.traffic = {.received = 3000, .sent = 700};
    monitor->start();
    counters.traffic = {.received = 1000, .sent = 700};
    sample();
    EXPECT_DOUBLE_EQ(snap().netDownBps, (std::ldexp(1, 64) - 2000) / 2);
    EXPECT_EQ(snap().netUpBps, 0);
    counters.traffic = {.received = 1200, .sent = 700};
    sample();
    EXPECT_DOUBLE_EQ(snap().netDownBps, 100);
}

TEST_F(SystemMonitorTest, UnreadableInterfacesCountAsZero) {
    counters.traffic = {.received = std::numeric_limits<std::uint64_t>::max() - 1, .sent = 1};
    monitor->start();
    counters.traffic.reset();
    sample();
    EXPECT_DOUBLE_EQ(snap().netDownBps, 1);
}

TEST_F(SystemMonitorTest, RatesAreOfTheTimeThatHasPassed) {
    counters.traffic = {.received = 1000, .sent = 0};
    monitor->start();
    counters.traffic = {.received = 5000, .sent = 0};
    clock.advance(seconds(8));
    mainLoop.run();
    EXPECT_DOUBLE_EQ(snap().netDownBps, 500);
}

TEST_F(SystemMonitorTest, AClockSetBackDoesNotDisturbTheRates) {
    counters.traffic = {.received = 1000, .sent = 0};
    monitor->start();
    clock.setNow(clock.now() - std::chrono::hours(1));
    counters.traffic = {.received = 3000, .sent = 0};
    sample();
    EXPECT_DOUBLE_EQ(snap().netDownBps, 1000);
}

TEST_F(SystemMonitorTest, WithoutAPrimaryInterfaceThereIsNoNetwork) {
    counters.link = platform::PrimaryLink{"wlan0", platform::WirelessLink{"Casa", -55}};
    monitor->start();
    counters.link.reset();
    sample();
    EXPECT_EQ(snap().netType, "—");
    EXPECT_FALSE(snap().netSsid);
    EXPECT_FALSE(snap().netRssi);
}

TEST_F(SystemMonitorTest, AWirelessInterfaceTellsItsNetworkAndSignal) {
    counters.link = platform::PrimaryLink{"wlan0", platform::WirelessLink{"Casa", -55}};
    monitor->start();
    EXPECT_EQ(snap().netType, "Wi-Fi");
    EXPECT_EQ(snap().netSsid, "Casa");
    EXPECT_EQ(snap().netRssi, -55);
}

TEST_F(SystemMonitorTest, AnyOtherPrimaryInterfaceCountsAsEthernet) {
    counters.link = platform::PrimaryLink{"tun0", std::nullopt};
    monitor->start();
    EXPECT_EQ(snap().netType, "Ethernet");
    EXPECT_FALSE(snap().netSsid);
    EXPECT_FALSE(snap().netRssi);
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

TEST_F(SystemMonitorTest, AVolumeWithoutACapacityIsLeftOut) {
    auto unknown = volume("unknown", 0);
    unknown.totalBytes.reset();
    volumes.finish({{volume("empty", 0), volume("smallest", 1), unknown}});
    monitor->start();
    EXPECT_THAT(diskNames(), ElementsAre("smallest"));
}

TEST_F(SystemMonitorTest, AVolumeThatIsNotBrowsableIsLeftOut) {
    auto hidden = volume("hidden", 10);
    hidden.isBrowsable = false;
    volumes.finish({{hidden, volume("data", 10)}});
    monitor->start();
    EXPECT_THAT(diskNames(), ElementsAre("data"));
}

TEST_F(SystemMonitorTest, TheLargestVolumeComesFirstAndEqualOnesKeepTheirOrder) {
    volumes.finish({{volume("b", 10), volume("c", 20), volume("a", 10), volume("d", 30)}});
    monitor->start();
    EXPECT_THAT(diskNames(), ElementsAre("d", "c", "b", "a"));
}

TEST_F(SystemMonitorTest, WhatAVolumeDoesNotTellHasADefault) {
    volumes.finish({{{.path = "/media/user/My Disk/", .totalBytes = 10}, {.path = "/", .totalBytes = 5}}});
    monitor->start();
    EXPECT_THAT(diskNames(), ElementsAre("My Disk", "/"));
    EXPECT_EQ(snap().disks[0].freeBytes, 0);
    EXPECT_TRUE(snap().disks[0].isInternal);
}

TEST_F(SystemMonitorTest, WithoutAListOfVolumesThereAreNone) {
    volumes.finish({{volume("data", 10)}});
    monitor->start();
    volumes.finish(std::nullopt);
    sample();
    EXPECT_THAT(snap().disks, IsEmpty());
}

TEST_F(SystemMonitorTest, TheFirstVolumesAreShownAsSoonAsTheyArrive) {
    monitor->start();
    EXPECT_THAT(snap().disks, IsEmpty());
    volumes.finish({{volume("data", 10)}});
    EXPECT_THAT(diskNames(), ElementsAre("data"));
    EXPECT_EQ(samples, 2);
    // Later ones with the next sample.
    volumes.finish({{volume("data", 10), volume("usb", 20)}});
    EXPECT_THAT(diskNames(), ElementsAre("data"));
    sample();
    EXPECT_THAT(diskNames(), ElementsAre("usb", "data"));
    EXPECT_EQ(samples, 3);
}

TEST_F(SystemMonitorTest, VolumesThatArriveAfterTheStopAreNotShown) {
    monitor->start();
    monitor->stop();
    volumes.finish({{volume("data", 10)}});
    EXPECT_EQ(samples, 1);
    EXPECT_THAT(snap().disks, IsEmpty());
}

TEST_F(SystemMonitorTest, TheThirdTickRefreshesTheProcesses) {
    counters.processes = {{"first", 1, 0}};
    monitor->start();
    counters.processes = {{"second", 1, 0}};
    sample(2);
    EXPECT_THAT(names(snap().topCpu), ElementsAre("first"));
    EXPECT_THAT(names(snap().topRam), ElementsAre("first"));
    sample();
    EXPECT_THAT(names(snap().topCpu), ElementsAre("second"));
    EXPECT_THAT(names(snap().topRam), ElementsAre("second"));
    sample(3);
    EXPECT_EQ(counters.processReadings, 3);
}

TEST_F(SystemMonitorTest, MemoryRowsAreTheBusiestProcessesWithTheirSizes) {
    counters.processes = {{"busy", 250.5, gibibyte / 1024}, {"large", 1, 3 * gibibyte}};
    monitor->start();
    EXPECT_THAT(names(snap().topRam), ElementsAre("busy", "large"));
    EXPECT_EQ(snap().topRam[0].value, 1);
    EXPECT_EQ(snap().topRam[1].value, 3072);
    EXPECT_EQ(snap().topCpu[0].value, 250.5);
    EXPECT_EQ(snap().topCpu[1].value, 1);
}

TEST_F(SystemMonitorTest, AtMostEightProcessesAreListed) {
    counters.processes.assign(20, {"worker", 1, 1});
    monitor->start();
    EXPECT_THAT(snap().topCpu, SizeIs(8));
    EXPECT_THAT(snap().topRam, SizeIs(8));
}

TEST_F(SystemMonitorTest, AProcessNameWithBlanksStaysWhole) {
    counters.processes = {{"Web Content Process", 1, 1}};
    monitor->start();
    EXPECT_THAT(names(snap().topCpu), ElementsAre("Web Content Process"));
}

TEST_F(SystemMonitorTest, ProcessListsShrinkToNothingIfThereAreNoneAnyMore) {
    counters.processes = {{"first", 1, 0}};
    monitor->start();
    counters.processes.clear();
    sample(3);
    EXPECT_THAT(snap().topCpu, IsEmpty());
    EXPECT_THAT(snap().topRam, IsEmpty());
}

TEST_F(SystemMonitorTest, RowsAndVolumesHaveNewIdentifiersEachTime) {
    counters.processes = {{"a", 1, 0}, {"b", 1, 0}};
    volumes.finish({{volume("data", 10)}});
    monitor->start();
    std::set<Uuid> ids;
    const auto collect = [&] {
        for (const auto* rows : {&snap().topCpu, &snap().topRam}) {
            for (const auto& row : *rows) ids.insert(row.id);
        }
        ids.insert(snap().disks.at(0).id);
    };
    collect();
    sample(3);
    collect();
    EXPECT_THAT(ids, SizeIs(10));
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
