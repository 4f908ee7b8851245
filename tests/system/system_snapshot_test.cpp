#include "system/system_snapshot.h"

#include <gtest/gtest.h>

namespace tidewatch {
namespace {

TEST(DiskVolumeTest, UsedIsWhatIsNotFree) {
    const DiskVolume volume{.totalBytes = 1000, .freeBytes = 250};
    EXPECT_EQ(volume.usedBytes(), 750);
    EXPECT_DOUBLE_EQ(volume.usedFraction(), 0.75);
}

TEST(DiskVolumeTest, MoreFreeThanThereIsMeansNothingUsed) {
    const DiskVolume volume{.totalBytes = 1000, .freeBytes = 1001};
    EXPECT_EQ(volume.usedBytes(), 0);
    EXPECT_EQ(volume.usedFraction(), 0);
}

TEST(DiskVolumeTest, WithoutACapacityNoFractionIsUsed) {
    EXPECT_EQ(DiskVolume().usedFraction(), 0);
    EXPECT_EQ((DiskVolume{.totalBytes = -5, .freeBytes = -50}.usedFraction()), 0);
}

TEST(SystemSnapshotTest, IsEmptyAtFirst) {
    const SystemSnapshot snap;
    EXPECT_EQ(snap.ramUsedFraction(), 0);
    EXPECT_EQ(snap.netType, "—");
    EXPECT_FALSE(snap.gpuUsage);
}

TEST(SystemSnapshotTest, TheFractionOfUsedMemoryIsOfTheTotal) {
    SystemSnapshot snap;
    snap.ramTotal = 16;
    snap.ramUsed = 4;
    EXPECT_DOUBLE_EQ(snap.ramUsedFraction(), 0.25);
}

}  // namespace
}  // namespace tidewatch
