#include "tests/system/system_monitor_fixture.h"

namespace tidewatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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

TEST_F(SystemMonitorTest, EachSampleAsksForAReadingOfTheVolumes) {
    monitor->start();
    EXPECT_EQ(volumes.refreshes, 1);
    sample(3);
    EXPECT_EQ(volumes.refreshes, 4);
}

TEST_F(SystemMonitorTest, AVolumeTellsWhereItIsMounted) {
    volumes.finish({{volume("data", 10)}});
    monitor->start();
    EXPECT_EQ(snap().disks.at(0).path, "/media/data");
}

}  // namespace
}  // namespace tidewatch
